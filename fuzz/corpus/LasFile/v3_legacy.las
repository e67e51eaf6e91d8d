~Version
VERS. 3.0 : CWLS
WRAP. NO :
~Well
STRT.M 1 : First {F}
STOP.M 2 : Last {F}
STEP.M 0.5 : Step {F}
NULL. -999.25 : Null
~Parameter
A. 1 :
~Curve
DEPT.M : d {F}
A. : a
~ASCII
1 2
1.5 3
2 4
