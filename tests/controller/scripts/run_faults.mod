! Each round comes to another error; the task starts anew in between.
!@ var int kind 5
GLOBAL PROC main()
    deeper(kind)
ENDPROC

PROC deeper(int left)
    IF left > 0
        deeper(left - 1)
    ELSE
        kind := 1 / (left - left)               !> fault: division by 0
    ENDIF
ENDPROC
