! What names mean, and what is there twice. A procedure is seen in its own file, a GLOBAL one in all files of the task.
!@ var int count
!@ var int z10
!@ var robtarget place
GLOBAL PROC main()
    count := cuont              !! 14 there is no variable or signal "cuont"
    count := DI2_16             !! 14 there is no variable or signal "DI2_16"
    count := DI4_0              !! 14 there is no variable or signal "DI4_0"
    count := DI02_0             !! 14 there is no variable or signal "DI02_0"
    count := early              !! 14 there is no variable or signal "early"
    VAR int early
    count := early
    count := Abs                !! 14 "Abs" is called with ( )
    count := hidden             !! 14 there is no variable or signal "hidden"
    hidden()                    !! 5 there is no procedure "hidden"
    shown()
    helper()
    z10 := 1                    !! 5 the project has a variable with the built-in name "z10"
    place.x := place.q          !! 22 a robtarget has the members x, y, z, a, b, c, not "q"
    count := count.x            !! 20 only a robtarget has members, not an int
    VAR int count := 3
    VAR int early               !! 13 the name "early" is taken already in line 11
    VAR int DI2_0               !! 13 the name "DI2_0" is built in
    VAR int MoveL               !! 13 the name "MoveL" is built in
    FOR i FROM 1 TO 3
        i := 2                  !! 9 the counter of a FOR cannot be assigned
        FOR i FROM 1 TO 3       !! 13 "i" counts already in a FOR around this one
        ENDFOR
    ENDFOR
    FOR i FROM 1 TO 3
    ENDFOR
    VAR bool i                  !! 14 the name "i" is taken already in line 25
ENDPROC

PROC helper()
ENDPROC

GLOBAL PROC main()              !! 13 there is a procedure "main" already: main.mod, line 5
ENDPROC

GLOBAL PROC Offs(int a, int a)  !! 13 "Offs" is a built-in function | 29 the name "a" is taken already in line 41
ENDPROC
!@ file other.mod
PROC hidden()
    helper()                    !! 5 there is no procedure "helper"
ENDPROC

GLOBAL PROC shown()
    hidden()
ENDPROC
!@ file third.mod
GLOBAL PROC shown()             !! 13 there is a procedure "shown" already: other.mod, line 5
ENDPROC
