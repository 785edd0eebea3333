! Numbers of arguments and kinds of values.
!@ var int count
!@ var string text
!@ var clock clock0
!@ var robtarget place
GLOBAL PROC main()
    MoveL(place, v1000, z50)            !! 5 "MoveL" takes 4 arguments, not 3
    MoveL(place, 1000, fine, PalletTool)                !! 18 a speed like v1000 is expected here, not an int
    MoveL(place, z50, v1000, Wobj0)     !! 18 a speed like v1000 is expected here, not a zone like z50 or fine | 23 a zone like z50 or fine is expected here, not a speed like v1000 | 30 the tool is expected here, not the work object
    MoveL(count, v0, fine, PalletTool)  !! 11 a robtarget is expected here, not an int | 18 there is no variable or signal "v0"
    SetDO(DI2_0, true)                  !! 11 the name of an output is expected here, like DO2_0
    SetDO(count, text)                  !! 11 the name of an output is expected here, like DO2_0 | 18 a bool is expected here, not a string
    PulseDO(DO2_0, place)               !! 20 a double is expected here, not a robtarget
    DO2_0 := true                       !! 5 a signal is set with SetDO
    DI2_0 := true                       !! 5 only a variable or its member can be assigned
    PalletHomePoint.x := 1              !! 21 only a variable or its member can be assigned
    Wait()                              !! 5 "Wait" takes 1 argument, not 0
    WaitUntil(text)                     !! 15 a bool is expected here, not a string
    ClockStart(count)                   !! 16 a clock is expected here, not an int
    clock0 := clock0                    !! 5 a clock cannot be assigned; use ClockReset
    VAR clock mine := 0                 !! 15 a clock starts at 0 and takes no value
    count := ClockRead(clock0, 1)       !! 14 "ClockRead" takes 1 argument, not 2
    text := GetPalletName()             !! 13 "GetPalletName" takes 1 or 2 arguments, not 0
    text := count                       !! 13 a string is expected here, not an int
    place := Offs(text, 1, 2, 3)        !! 19 a robtarget is expected here, not a string
    place := PalletTool                 !! 14 a robtarget is expected here, not the tool
    count := text + 1                   !! 19 numbers are expected here, not a string
    count := -text                      !! 14 a number is expected behind -, not a string
    IF text < "a" OR place == place OR count == text            !! 13 a string and a string have no order | 28 a robtarget and a robtarget cannot be compared | 46 an int and a string cannot be compared
    ENDIF
    WHILE place                         !! 11 a bool is expected here, not a robtarget
    ENDWHILE
    FOR i FROM text TO place            !! 16 an int is expected here, not a string | 24 an int is expected here, not a robtarget
    ENDFOR
    Abs(count)                          !! 5 "Abs" does nothing here: its value is not used
    count := Wait(1)                    !! 14 "Wait" gives no value
    count := sub(1)                     !! 14 "sub" takes 2 arguments, not 1 | 14 "sub" gives no value
    sub("a", 1)                         !! 9 a bool is expected here, not a string | 14 a string is expected here, not an int
ENDPROC

GLOBAL PROC sub(bool a, string b)
ENDPROC
