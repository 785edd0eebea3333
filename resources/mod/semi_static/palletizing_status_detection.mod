! Lamps and buzzer of the two pallets, and the confirmation of new pallets. Runs for ever.
!
!   left    DO3_1 yellow, DO3_2 green, DI2_3 arrow button, DO2_3 its lamp, DI2_5 pallet in place
!   right   DO3_5 yellow, DO3_6 green, DI2_4 arrow button, DO2_4 its lamp, DI2_6 pallet in place
!   DO3_3   buzzer for both
!
! flagL and flagR tell a full pallet, flagL1 and flagR1 that both were full, flagLL and flagRR that the robot has begun
! with the side.

GLOBAL PROC main()
    VAR bool removedL
    VAR bool removedR
    WHILE true
        ! Left: a new pallet is in place and the operator confirms it. Keep the button pressed until its lamp lights.
        IF DI2_5 AND DI2_3 AND NOT DO2_3 AND (flagL == 0 OR removedL) AND palletStatus <> 1
            SetDO(DO3_2, true)
            SetDO(DO2_3, true)
            flagL := 0
            flagL1 := 0
            layerCountL := 1
            currentLayerL := 1
            flagLL := false
            removedL := false
        ENDIF
        ! Right: a new pallet is in place and the operator confirms it. Keep the button pressed until its lamp lights.
        IF DI2_6 AND DI2_4 AND NOT DO2_4 AND (flagR == 0 OR removedR) AND palletStatus <> 2
            SetDO(DO3_6, true)
            SetDO(DO2_4, true)
            flagR := 0
            flagR1 := 0
            layerCountR := 1
            currentLayerR := 1
            flagRR := false
            removedR := false
        ENDIF
        ! Left: ready for the next product.
        IF flagL == 0 AND DI2_5 AND DI3_0 AND flagLL AND relax
            SetDO(DO3_2, true)
        ENDIF
        ! Right: ready for the next product.
        IF flagR == 0 AND DI2_6 AND DI3_0 AND flagRR AND relax
            SetDO(DO3_6, true)
        ENDIF
        IF flagL == 1 AND flagR == 1 AND NOT estop0 AND NOT collision
            ! Both full: neither side begins again until its new pallet is confirmed.
            flagL1 := 1
            flagR1 := 1
            SetDO(DO3_1, false)
            SetDO(DO3_2, false)
            SetDO(DO3_5, false)
            SetDO(DO3_6, false)
            SetDO(DO2_3, false)
            SetDO(DO2_4, false)
            PulseDO(DO3_3, 1)
            PulseDO(DO3_1, 1)
            PulseDO(DO3_5, 1)
            Wait(3)
        ELSE
            ! One side is full and its pallet still there.
            IF flagL == 1 AND DI2_5
                PulseDO(DO3_1, 1)
                PulseDO(DO3_3, 1)
                Wait(3)
            ENDIF
            IF flagR == 1 AND DI2_6
                PulseDO(DO3_5, 1)
                PulseDO(DO3_3, 1)
                Wait(3)
            ENDIF
        ENDIF
        ! Left: the full pallet was taken away. The confirmation of the old pallet ends with it.
        IF flagL == 1 AND NOT DI2_5
            removedL := true
            SetDO(DO3_2, false)
            SetDO(DO2_3, false)
            PulseDO(DO3_1, 0.5)
            Wait(1)
        ENDIF
        ! Right: the full pallet was taken away. The confirmation of the old pallet ends with it.
        IF flagR == 1 AND NOT DI2_6
            removedR := true
            SetDO(DO3_6, false)
            SetDO(DO2_4, false)
            PulseDO(DO3_5, 0.5)
            Wait(1)
        ENDIF
    ENDWHILE
ENDPROC
