! Right stacking, single suction, with a lift column, no separator sheets.
!
! Takes up at layer currentLayerR and piece layerCountR, which outlive a stop, and ends when the pallet is full
! (flagR = 1).
!
! High layers are out of reach from below: when a way-point lies above SetZ, the column lifts the robot by liftHeight.
! Points are those of the lowered robot, so with the column up (rise = 1) everything lies liftHeight lower for it. The
! column works with 7000 drive units to the millimetre, and rests at 1 mm. A move is repeated until the drive is within
! 1000 units of its target.

GLOBAL PROC YouMaDuo()
    VAR string name
    VAR bool isThere
    flagRR := true
    name := GetPalletName(palletIndexR, 1)
    boxheight := boxHeightR
    PalletUpdate(name, 1, 1)
    MoveL(PalletHomePoint, v4000, z200, PalletTool)
    WHILE currentLayerR <= PalletLayerCount(name)
        PalletUpdate(name, currentLayerR, 1)
        ! The column stands as this layer needs it.
        IF rise == 0 AND (PalletEnterPoint.z > SetZ OR PalletReadyPoint.z > SetZ)
            use_rise := 1
            isThere := false
            WHILE NOT isThere
                clearAlarm()
                powerOff()
                setModeToPosition()
                powerOn()
                moveTo(7000 * liftHeight, 7000 * 50, true)
                powerOff()
                Wait(0.5)
                isThere := NOT flag AND Abs(ReadRegister("PositionRead") - 7000 * liftHeight) <= 1000
            ENDWHILE
            rise := 1
            use_rise := 0
        ELSEIF rise == 1 AND PalletEnterPoint.z <= SetZ AND PalletReadyPoint.z <= SetZ
            use_rise := 1
            isThere := false
            WHILE NOT isThere
                clearAlarm()
                powerOff()
                setModeToPosition()
                powerOn()
                moveTo(7000 * 1, 7000 * 50, true)
                powerOff()
                Wait(0.5)
                isThere := NOT flag AND Abs(ReadRegister("PositionRead") - 7000 * 1) <= 1000
            ENDWHILE
            rise := 0
            use_rise := 0
        ENDIF
        WHILE layerCountR <= PalletWobjCount(name, currentLayerR)
            PalletUpdate(name, currentLayerR, layerCountR)
            ClockStart(clock0)
            ! Fetch a product.
            MoveL(Offs(PalletGetApproachPoint, 0, 0, -liftHeight * rise), v4000, z200, PalletTool)
            WaitUntil(DI3_0)
            MoveL(Offs(PalletGetWobjPoint, 0, 0, -liftHeight * rise), v4000, fine, PalletTool)
            SetDO(DO2_6, true)
            Wait(0.5)
            grabbing := true
            MoveL(Offs(PalletGetApproachPoint, 0, 0, -liftHeight * rise), v4000, z200, PalletTool)
            ! Set it down.
            MoveL(Offs(PalletEnterPoint, 0, 0, -liftHeight * rise), v4000, z200, PalletTool)
            MoveL(Offs(PalletReadyPoint, 0, 0, -liftHeight * rise), v4000, z200, PalletTool)
            MoveL(Offs(PalletApproachPoint, 0, 0, -liftHeight * rise), v4000, z200, PalletTool)
            MoveL(Offs(PalletWobjPoint, 0, 0, -liftHeight * rise), v4000, fine, PalletTool)
            grabbing := false
            SetDO(DO2_6, false)
            Wait(1)
            palletCountR := palletCountR + 1
            layerCountR := layerCountR + 1
            ! Back to the conveyor.
            MoveL(Offs(PalletExitPoint, 0, 0, -liftHeight * rise), v4000, z200, PalletTool)
            MoveL(Offs(PalletEnterPoint, 0, 0, -liftHeight * rise), v4000, z200, PalletTool)
            MoveL(Offs(PalletGetApproachPoint, 0, 0, -liftHeight * rise), v4000, z200, PalletTool)
            ClockStop(clock0)
            cycleTimeR := ClockRead(clock0)
            ClockReset(clock0)
        ENDWHILE
        layerCountR := 1
        currentLayerR := currentLayerR + 1
        IF currentLayerR == PalletLayerCount(name) + 1
            ! The pallet is full.
            flagR := 1
            totalPalletsR := totalPalletsR + 1
            palletCountR := 0
            MoveL(PalletHomePoint, v4000, z200, PalletTool)
            use_rise := 1
            isThere := false
            WHILE NOT isThere
                clearAlarm()
                powerOff()
                setModeToPosition()
                powerOn()
                moveTo(7000 * 1, 7000 * 50, true)
                powerOff()
                Wait(0.5)
                isThere := NOT flag AND Abs(ReadRegister("PositionRead") - 7000 * 1) <= 1000
            ENDWHILE
            rise := 0
            use_rise := 0
        ELSE
            flagR := 0
        ENDIF
    ENDWHILE
ENDPROC
