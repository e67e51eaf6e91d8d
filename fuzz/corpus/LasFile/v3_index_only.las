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
D.M :
~Log_Data | Log_Definition
1
1.5
2
