! Pauses the program when it cannot go on: the pallet that is being stacked leaves, or the product is lost.
!
!   palletStatus    1 left, 2 right
!
! PAUSE stops the robot, not this task. The operator mends what is wrong and goes on with the start button.

GLOBAL PROC main()
    IF palletStatus == 1 AND NOT DI2_5
        SetDO(DO3_1, true)
        PAUSE
    ENDIF
    IF palletStatus == 2 AND NOT DI2_6
        SetDO(DO3_5, true)
        PAUSE
    ENDIF
    IF DO2_6
        ! The vacuum needs a moment to build up.
        Wait(1)
        IF grabbing AND NOT DI2_15
            IF palletStatus == 1
                SetDO(DO3_1, true)
            ELSEIF palletStatus == 2
                SetDO(DO3_5, true)
            ENDIF
            grabbing := false
            PAUSE
        ENDIF
    ENDIF
ENDPROC
