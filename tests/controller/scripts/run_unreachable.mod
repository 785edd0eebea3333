! A move that fails ends the task at the move, wherever the program is.
GLOBAL PROC main()
    VAR robtarget far
    far.x := 6000
    MoveL(far, v100, z50, PalletTool)           !> move 6000 0 0 v100 z50; fault: out of reach
    IF true
        SetDO(DO2_0, true)
    ENDIF
ENDPROC
