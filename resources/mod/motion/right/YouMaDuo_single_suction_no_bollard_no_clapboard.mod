! Right stacking, single suction, without a lift column, no separator sheets.
!
! Takes up at layer currentLayerR and piece layerCountR, which outlive a stop, and ends when the pallet is full
! (flagR = 1).

GLOBAL PROC YouMaDuo()
    VAR string name
    flagRR := true
    name := GetPalletName(palletIndexR, 1)
    PalletUpdate(name, 1, 1)
    MoveL(PalletHomePoint, v4000, z200, PalletTool)
    WHILE currentLayerR <= PalletLayerCount(name)
        PalletUpdate(name, currentLayerR, 1)
        WHILE layerCountR <= PalletWobjCount(name, currentLayerR)
            PalletUpdate(name, currentLayerR, layerCountR)
            ClockStart(clock0)
            ! Fetch a product.
            MoveL(PalletGetApproachPoint, v4000, z200, PalletTool)
            WaitUntil(DI3_0)
            MoveL(PalletGetWobjPoint, v4000, fine, PalletTool)
            SetDO(DO2_6, true)
            Wait(0.5)
            grabbing := true
            MoveL(PalletGetApproachPoint, v4000, z200, PalletTool)
            ! Set it down.
            MoveL(PalletEnterPoint, v4000, z200, PalletTool)
            MoveL(PalletReadyPoint, v4000, z200, PalletTool)
            MoveL(PalletApproachPoint, v4000, z200, PalletTool)
            MoveL(PalletWobjPoint, v4000, fine, PalletTool)
            grabbing := false
            SetDO(DO2_6, false)
            Wait(1)
            palletCountR := palletCountR + 1
            layerCountR := layerCountR + 1
            ! Back to the conveyor.
            MoveL(PalletExitPoint, v4000, z200, PalletTool)
            MoveL(PalletEnterPoint, v4000, z200, PalletTool)
            MoveL(PalletGetApproachPoint, v4000, z200, PalletTool)
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
        ELSE
            flagR := 0
        ENDIF
    ENDWHILE
ENDPROC
