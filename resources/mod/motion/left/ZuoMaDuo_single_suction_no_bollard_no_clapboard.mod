! Left stacking, single suction, without a lift column, no separator sheets.
!
! Takes up at layer currentLayerL and piece layerCountL, which outlive a stop, and ends when the pallet is full
! (flagL = 1).

GLOBAL PROC ZuoMaDuo()
    VAR string name
    flagLL := true
    name := GetPalletName(palletIndexL, 0)
    PalletUpdate(name, 1, 1)
    MoveL(PalletHomePoint, v4000, z200, PalletTool)
    WHILE currentLayerL <= PalletLayerCount(name)
        PalletUpdate(name, currentLayerL, 1)
        WHILE layerCountL <= PalletWobjCount(name, currentLayerL)
            PalletUpdate(name, currentLayerL, layerCountL)
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
            palletCountL := palletCountL + 1
            layerCountL := layerCountL + 1
            ! Back to the conveyor.
            MoveL(PalletExitPoint, v4000, z200, PalletTool)
            MoveL(PalletEnterPoint, v4000, z200, PalletTool)
            MoveL(PalletGetApproachPoint, v4000, z200, PalletTool)
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
        ELSE
            flagL := 0
        ENDIF
    ENDWHILE
ENDPROC
