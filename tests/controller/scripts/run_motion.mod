! Moves are handed over ahead of the robot; everything else waits until they are reached.
!@ var int count 7
!@ var robtarget place
GLOBAL PROC main()
    VAR robtarget start
    start.x := 10
    start.z := 5.5
    MoveL(start, v100, z50, PalletTool)                                 !> move 10 0 5.5 v100 z50
    start := Offs(start, 1, count, 0)                                   !
    MoveL(start, v200, z0, PalletTool)                                  !> move 11 7 5.5 v200 z0@1
    count := 8                                                          !> count=8@2
    MoveL(Offs(start, 0, 0, count), v200, fine, PalletTool)             !> move 11 7 13.5 v200 fine@2
    MoveL(start, v200, fine, PalletTool)                                !> move 11 7 5.5 v200 fine@2
    MoveL(start, v300, fine, PalletTool)                                !> move 11 7 5.5 v300 fine@3
    place := CurrentTarget(PalletTool, Wobj0)                           !> place=11 7 5.5@5
    place.c := 90                                                       !> place=11 7 5.5 0 0 90@5
    MoveL(Offs(place, 0, 0, -20), v300, fine, PalletTool)               !> fault: below the floor@5
ENDPROC
