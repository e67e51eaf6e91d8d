quorrel_fuzz(LasFile quorrel_las)
