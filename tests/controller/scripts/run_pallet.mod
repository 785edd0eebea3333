! The pallet functions.
!@ var string name
!@ var int count
GLOBAL PROC main()
    name := GetPalletName(0)                    !> name=A
    name := GetPalletName(0, 1)                 !> name=B
    FOR layer FROM 1 TO PalletLayerCount(name)
        FOR piece FROM 1 TO PalletWobjCount(name, layer)
            PalletUpdate(name, layer, piece)    !> update B 1 1; update B 1 2; update B 1 3; update B 2 1; update B 2 2
        ENDFOR
    ENDFOR
    MoveL(PalletHomePoint, v10, fine, PalletTool)       !> move 0 20 200 v10 fine
    MoveL(PalletGetApproachPoint, v10, z1, PalletTool)  !> move 100 20 200 v10 z1
    MoveL(PalletGetWobjPoint, v10, z2, PalletTool)      !> move 200 20 200 v10 z2@1
    MoveL(PalletEnterPoint, v10, z3, PalletTool)        !> move 300 20 200 v10 z3@2
    MoveL(PalletReadyPoint, v10, z4, PalletTool)        !> move 400 20 200 v10 z4@3
    MoveL(PalletApproachPoint, v10, z5, PalletTool)     !> move 500 20 200 v10 z5@4
    MoveL(PalletWobjPoint, v10, z6, PalletTool)         !> move 600 20 200 v10 z6@5
    MoveL(PalletExitPoint, v10, z7, PalletTool)         !> move 700 20 200 v10 z7@6
    IF PalletExitPoint.z == 200 AND PalletExitPoint.b == 0
        PalletUpdate(name, 3, 1)                        !> fault: there is no layer 3@8
    ENDIF
ENDPROC
