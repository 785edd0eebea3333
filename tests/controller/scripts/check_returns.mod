! A procedure gives what its first RETURN with a value gives.
!@ var string text
GLOBAL PROC main(int argument)          !! 13 "main" takes no parameters
    text := half(3)                     !! 13 a string is expected here, not a double
    text := chain()
    text := looped()                    
    RETURN 1
    RETURN                              !! 5 RETURN gives no value here, but it does elsewhere in "main"
    RETURN "a"                          !! 12 an int is expected here, not a string
ENDPROC

GLOBAL PROC half(int a)
    RETURN a / 2
ENDPROC

GLOBAL PROC chain()
    RETURN further()
ENDPROC

GLOBAL PROC further()
    RETURN "end"
ENDPROC

GLOBAL PROC looped()                    !! 13 what "looped" gives depends on itself; put a RETURN of a plain value first
    RETURN back()
ENDPROC

GLOBAL PROC back()                      !! 13 what "back" gives depends on itself; put a RETURN of a plain value first
    RETURN looped()
ENDPROC

GLOBAL PROC factorial(int a)
    IF a < 2
        RETURN 1
    ENDIF
    RETURN a * factorial(a - 1)
ENDPROC

GLOBAL PROC timer()
    VAR clock a
    RETURN a                            !! 12 a clock cannot be returned
ENDPROC
