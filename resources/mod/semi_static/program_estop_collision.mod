! Beacons and fault buzzer for the state of the program. Once per cycle of the task.
!
!   left    DO3_0 red, DO3_1 yellow, DO3_2 green
!   right   DO3_4 red, DO3_5 yellow, DO3_6 green, DO3_7 buzzer
!
! estop0, collision, relax and move are states of the controller.

GLOBAL PROC main()
    IF NOT relax AND NOT estop0 AND NOT collision AND NOT move
        ! Nothing runs and nothing is wrong.
        SetDO(DO3_0, false)
        SetDO(DO3_4, false)
        SetDO(DO3_2, false)
        SetDO(DO3_6, false)
        SetDO(DO3_7, false)
        SetDO(DO3_1, true)
        SetDO(DO3_5, true)
    ELSEIF estop0 OR collision
        SetDO(DO3_1, false)
        SetDO(DO3_5, false)
        SetDO(DO3_2, false)
        SetDO(DO3_6, false)
        SetDO(DO3_0, true)
        SetDO(DO3_4, true)
        SetDO(DO3_7, true)
    ELSE
        SetDO(DO3_0, false)
        SetDO(DO3_4, false)
        SetDO(DO3_7, false)
    ENDIF
ENDPROC
