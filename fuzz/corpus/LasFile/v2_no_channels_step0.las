~Version
VERS. 2.0 : CWLS
WRAP. NO : One line
~Well
STRT.M 1 : Start
STOP.M 2 : Stop
STEP.M 0 : Step
NULL. -999.25 : Null
~Param
BS.IN 8.5 : Bit size
~Curve
DEPT.M :
~Other
remark
~A
1 1.5 3