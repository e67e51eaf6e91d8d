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
DEPT.M : Depth {F}
GR.GAPI 1 : Gamma {F} | RUN[1]
NMR[1].ms : echo {A:0}
NMR[2].ms : echo {A:5}
~Aux_Definition
TIME.S : t {F}
P. : p {F}
~Log_Data | Log_Definition
1.0 10 2.1 3
1.5 20 2.2e0 4
2.0 30 -999.25 5
~Aux_Data | Aux_Definition
1 2
1.5 3
2 4
