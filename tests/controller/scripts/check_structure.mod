! What begins and what ends.
VAR int outside                 !! 1 a procedure is expected here: [GLOBAL] PROC name(...)
second()

GLOBAL                          !! 7 PROC is expected here, not the end of the line

GLOBAL PROC main()
    IF true
        WHILE true
            ENDFOR              !! 13 ENDFOR ends nothing that is open here
            relax               !! 18 ":=" or "(" is expected here, not the end of the line
    ENDIF                       !! 5 ENDWHILE is missing: the WHILE in line 9 is open
    IF                          !! 7 an expression is expected here, not the end of the line
        Wait(1                  !! 15 "," or ")" is expected here, not the end of the line
    ELSEIF false
        VAR int                 !! 16 the name of a variable is expected here, not the end of the line
        VAR integer x := 1      !! 13 a type (bool, int, double, string, clock, robtarget) is expected here, not "integer"
    ELSE
        RETURN 1 2              !! 18 the end of the line is expected here, not "2"
    ELSE                        !! 5 ELSE behind ELSE
        PAUSE now               !! 15 the end of the line is expected here, not "now"
    ENDIF
    FOR i FROM 1                !! 17 TO is expected here, not the end of the line
        1 := 2                  !! 9 a statement is expected here, not "1"
    ENDFOR
    FOR 1 TO 2                  !! 9 the name of a counter is expected here, not "1"
    ENDFOR
    x.y                         !! 8 ":=" or "(" is expected here, not the end of the line
    a := b < c < d              !! 16 a comparison cannot be compared again; join comparisons with AND
    a := NOT NOT b              !! 14 an expression is expected here, not "NOT"
    a := -(1 + 2                !! 17 ")" is expected here, not the end of the line
    a := b.2                    !! 12 a member is expected here, not "2"
ENDIF                           !! 1 ENDIF ends nothing that is open here
ENDPROC

GLOBAL PROC headless(int, bool b)       !! 25 the name of a parameter is expected here, not ","
    Wait(1                      !! 11 "," or ")" is expected here, not the end of the line
ENDPROC

GLOBAL PROC unclosed()
    IF true
        Wait(1)

GLOBAL PROC next()              !! 1 ENDIF is missing: the IF in line 41 is open | 1 ENDPROC is missing: the PROC in line 40 is open
ENDPROC
