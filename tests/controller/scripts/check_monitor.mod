! Only a motion task moves the robot. A task needs a main.
!@ task normal
!@ var robtarget place
GLOBAL PROC move_it()
    MoveL(place, v100, fine, PalletTool)        !! 5 only a motion task moves the robot
    place := CurrentTarget(PalletTool, Wobj0)
ENDPROC
