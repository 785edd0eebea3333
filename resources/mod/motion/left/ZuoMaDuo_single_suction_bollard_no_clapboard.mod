! Left stacking, single suction, with a lift column, no separator sheets.
!
! Takes up at layer currentLayerL and piece layerCountL, which outlive a stop, and ends when the pallet is full
! (flagL = 1).
!
! High layers are out of reach from below: when a way-point lies above SetZ, the column lifts the robot by liftHeight.
! Points are those of the lowered robot, so with the column up (rise = 1) everything lies liftHeight lower for it. The
! column works with 7000 drive units to the millimetre, and rests at 1 mm. A move is repeated until the drive is within
! 1000 units of its target.

GLOBAL PROC ZuoMaDuo()
    VAR string name
    VAR bool isThere
    flagLL := true
    name := GetPalletName(palletIndexL, 0)
    boxheight := boxHeightL
    PalletUpdate(name, 1, 1)
    MoveL(PalletHomePoint, v4000, z200, PalletTool)
    WHILE currentLayerL <= PalletLayerCount(name)
        PalletUpdate(name, currentLayerL, 1)
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
        WHILE layerCountL <= PalletWobjCount(name, currentLayerL)
            PalletUpdate(name, currentLayerL, layerCountL)
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
            palletCountL := palletCountL + 1
            layerCountL := layerCountL + 1
            ! Back to the conveyor.
            MoveL(Offs(PalletExitPoint, 0, 0, -liftHeight * rise), v4000, z200, PalletTool)
            MoveL(Offs(PalletEnterPoint, 0, 0, -liftHeight * rise), v4000, z200, PalletTool)
            MoveL(Offs(PalletGetApproachPoint, 0, 0, -liftHeight * rise), v4000, z200, PalletTool)
            ClockStop(clock0)
            cycleTimeL := ClockRead(clock0)
            ClockReset(clock0)
        ENDWHILE
        layerCountL := 1
        currentLayerL := currentLayerL + 1
        IF currentLayerL == PalletLayerCount(name) + 1
            ! The pallet is full.
            flagL := 1
            totalPalletsL := totalPalletsL + 1
            palletCountL := 0
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
            flagL := 0
        ENDIF
    ENDWHILE
ENDPROC
