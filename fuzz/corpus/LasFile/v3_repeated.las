~Version
VERS. 3.0 : CWLS
WRAP. NO :
DLM. SPACE : d
~Well
STRT.M 1 : First {F}
STOP.M 2 : Last {F}
STEP.M 0.5 : Step {F}
NULL. -999.25 : Null
~Curve
D.M :
A. :
~ASCII
1 2
1.5 3
2 4
~Curve
D.M :
~ASCII
1
1.5
2
~Curve
