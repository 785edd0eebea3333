! Ints do not wrap around.
!@ var int count 2
GLOBAL PROC main()
    FOR i FROM 1 TO 10
        count := count * count                  !> count=4; count=16; count=256; count=65536; count=4294967296; fault: the result is too large for an int
    ENDFOR
ENDPROC
