! Branches, loops, procedures.
!@ var int count
!@ var double ratio
!@ var string name
GLOBAL PROC main()
    FOR i FROM 1 TO 3
        IF i == 1
            count := 10 * i                     !> count=10
        ELSEIF i == 2
            count := count + i                  !> count=12
        ELSE
            count := -i                         !> count=-3
        ENDIF
    ENDFOR
    FOR i FROM 3 TO 1
        count := 99
    ENDFOR
    FOR i FROM 9223372036854775806 TO 9223372036854775807
        count := i - 9223372036854775800        !> count=6; count=7
    ENDFOR
    WHILE count > 5
        count := count - 1                      !> count=6; count=5
    ENDWHILE
    count := factorial(10)                      !> count=3628800
    ratio := mean(1, 2.5)                       !> ratio=1.75
    name := choose(count > 5)                   !> name=it's "large"
    PAUSE                                       !> pause
    IF false AND 1 / 0 == 1 OR true OR 1 / 0 == 1
        count := Abs(-4) + Abs(true)            !> count=5@0.1
        ratio := Abs(-0.5)                      !> ratio=0.5@0.1
    ENDIF
    RETURN
    count := 0
ENDPROC

PROC factorial(int a)
    IF a < 2
        RETURN 1
    ENDIF
    RETURN a * factorial(a - 1)
ENDPROC

PROC mean(double a, double b)
    RETURN (a + b) / 2
ENDPROC

PROC choose(bool isLarge)
    IF isLarge
        RETURN "it's ""large"""
    ENDIF
    RETURN "small"
ENDPROC
