! Way home from wherever the robot stands, for a cell whose work objects look forward, with a lift column.
! Only the left side is in use.
!
! The sign of y tells at which pallet the robot stands: y > 0 is the left one, y <= 0 the right one. Further than Margin
! from its home it first lifts what it may be carrying out of the stack, if that stays below MaxZ, and leaves the pallet
! by the enter point.
!
! Then the column goes where the current layer needs it. rise tells where it should stand; after a power cut in the middle of
! its way only the drive knows.

GLOBAL PROC BackHome()
    VAR string name
    VAR bool isAway
    VAR bool isThere
    VAR int layer
    boxheight := 300
    name := GetPalletName(0)
    PalletUpdate(name, 1, 1)
    BHOME := CurrentTarget(PalletTool, Wobj0)
    IF BHOME.y > 0
        ! Left pallet. Its counters may stand behind the last layer, or come from another recipe.
        name := GetPalletName(palletIndexL, 0)
        IF currentLayerL > PalletLayerCount(name)
            currentLayerL := PalletLayerCount(name)
        ENDIF
        IF layerCountL > PalletWobjCount(name, currentLayerL)
            layerCountL := PalletWobjCount(name, currentLayerL)
        ENDIF
        IF layerCountL < 1
            layerCountL := 1      ! a layer without pieces: a separator sheet
        ENDIF
        PalletUpdate(name, currentLayerL, layerCountL)
        boxheight := boxHeightL
        isAway := Abs(BHOME.x - PalletHomePoint.x) > Margin
        isAway := isAway OR Abs(BHOME.y - PalletHomePoint.y) > Margin
        isAway := isAway OR Abs(BHOME.z - PalletHomePoint.z) > Margin
        IF isAway
            IF BHOME.z + boxheight < MaxZ
                MoveL(Offs(BHOME, 0, 0, boxheight), v1000, fine, PalletTool)
            ENDIF
            MoveL(Offs(PalletEnterPoint, 0, 0, -liftHeight * rise), v1000, z200, PalletTool)
        ENDIF
        MoveL(PalletHomePoint, v1000, fine, PalletTool)
    ELSE
        ! Not at the left pallet: nothing is in the way.
        name := GetPalletName(palletIndexL, 0)
        layer := currentLayerL
        IF layer > PalletLayerCount(name)
            layer := PalletLayerCount(name)
        ENDIF
        PalletUpdate(name, layer, 1)
        MoveL(PalletHomePoint, v1000, fine, PalletTool)
    ENDIF
    ! The robot is clear of the stack.
    IF PalletEnterPoint.z > SetZ OR PalletReadyPoint.z > SetZ
        IF rise == 0 OR Abs(ReadRegister("PositionRead") - 7000 * liftHeight) > 1000
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
        ENDIF
    ELSE
        IF rise == 1 OR Abs(ReadRegister("PositionRead") - 7000 * 1) > 1000
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
    ENDIF
ENDPROC
