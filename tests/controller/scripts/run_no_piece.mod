! Points are those of the piece that was chosen.
GLOBAL PROC main()
    MoveL(PalletExitPoint, v10, z7, PalletTool)         !> fault: no piece was chosen with PalletUpdate
ENDPROC
