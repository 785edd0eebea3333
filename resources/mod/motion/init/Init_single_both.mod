! State at the start of the program: nobody is served, and both sides count from 0.
! Layers and pieces are kept, so that a half-full pallet is finished.

GLOBAL PROC Init()
    palletStatus := 0
    totalPalletsL := 0
    flagL := 0
    flagL1 := 0
    totalPalletsR := 0
    flagR := 0
    flagR1 := 0
ENDPROC
