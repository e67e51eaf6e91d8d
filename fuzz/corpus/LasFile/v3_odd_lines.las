~Version
VERS. 3.0 : CWLS
WRAP. NO :
DLM. SPACE : d
~Well
STRT.M 1 : First {F}
STOP.M 2 : Last {F}
STEP.M 0.5 : Step {F}
NULL. -999.25 : Null
~Log_Definition
STRT.M:text
X.M 1 : a | b {F} | c
:|{}
Y. {|} :
.
~Log_Data | Log_Definition
1 2 3 4 5
1.5 2 3 4 5
2 3 4 5 6
