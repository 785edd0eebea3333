! A procedure that should have given a value.
!@ var int count
GLOBAL PROC main()
    count := sign(3)                            !> count=1
    count := sign(0)
ENDPROC

PROC sign(int a)
    IF a > 0
        RETURN 1
    ENDIF
ENDPROC                                         !> fault: "sign" ended without a RETURN of its value
