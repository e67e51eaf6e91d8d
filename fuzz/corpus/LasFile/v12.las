~Version
VERS. 1.2 : CWLS
WRAP. NO : One line
~Well
STRT.M 1 : Start
STOP.M 2 : Stop
STEP.M 0.5 : Step
NULL. -999.25 : Null
~Param
BS.IN 8.5 : Bit size
~Curve
DEPT.M : 1 Depth
GR.GAPI : 2 Gamma
CAL[1].IN : 3 Finger
CAL[2].IN : 4 Finger
~Other
remark
~A
1.0 10 2.1 3
1.5 20 2.2 4
2.0 30 -999.25 5
