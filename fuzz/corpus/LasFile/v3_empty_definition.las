~Version
VERS. 3.0 : CWLS
WRAP. NO :
DLM. SPACE : d
~Well
STRT.M 0 : First {F}
STOP.M 0 : Last {F}
STEP.M 0 : Step {F}
NULL. -999.25 : Null
~Log_Definition
~Log_Data | Log_Definition
1
2
