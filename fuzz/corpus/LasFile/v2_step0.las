~Version
VERS. 2.0 : CWLS
WRAP. NO : One line
~Well
STRT.M 1 : Start
STOP.M 4 : Stop
STEP.M 0 : Step
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
1 1 -999.25 3
1.5 2 3 4
4 5 6 7
