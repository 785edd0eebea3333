! Main program of the motion task: stacks both pallets in turn.
!
! A side is served when it is enabled on the panel (enableStackL, enableStackR) or asked for with the start button. Then
! the program waits for the pallet, a product at the stop and a side that is not full.
!
! Signals of the cell
!   inputs                              outputs
!   DI2_0   start button                DO2_0   start lamp
!   DI2_1   stop button                 DO2_1   stop lamp
!   DI2_2   reset button                DO2_2   reset lamp
!   DI2_3   left arrow button           DO2_3   left arrow lamp
!   DI2_4   right arrow button          DO2_4   right arrow lamp
!   DI2_5   left pallet in place        DO2_6   suction on
!   DI2_6   right pallet in place       DO2_10, DO2_11          safety scanner 1, zones 1 and 2
!   DI2_8 to DI2_10   laser scanner 1   DO2_12, DO2_13          safety scanner 2, zones 1 and 2
!   DI2_11 to DI2_13  laser scanner 2   DO3_0, DO3_1, DO3_2     left beacon red, yellow, green
!   DI2_15  air pressure                DO3_3   left buzzer (palletizing)
!   DI3_0   product in place            DO3_4, DO3_5, DO3_6     right beacon red, yellow, green
!                                       DO3_7   right buzzer (faults)
!                                       DO3_8, DO3_9            conveyor forward, reverse

GLOBAL PROC main()
    BackHome()
    Init()
    WHILE true
        ! Left side. flagL1 keeps it closed while both pallets are full.
        IF flagL1 == 0 AND (DI2_0 OR enableStackL)
            WaitUntil(enableStackL AND DI2_5 AND DI3_0 AND flagL == 0)
            palletStatus := 1
            ZuoMaDuo()
            palletStatus := 0
        ENDIF
        ! Right side. flagR1 keeps it closed while both pallets are full.
        IF flagR1 == 0 AND (DI2_0 OR enableStackR)
            WaitUntil(enableStackR AND DI2_6 AND DI3_0 AND flagR == 0)
            palletStatus := 2
            YouMaDuo()
            palletStatus := 0
        ENDIF
        ! Both full: neither side begins again until its new pallet is confirmed.
        IF flagL == 1 AND flagR == 1
            flagL1 := 1
            flagR1 := 1
        ENDIF
    ENDWHILE
ENDPROC
