! Numbers and bools take each other's values; a double must be whole to become an int.
!@ var bool flag true
!@ var int count
!@ var double level
!@ var bool isOn
GLOBAL PROC main()
    flag := 0                   !> flag=0
    flag := 2.5                 !> flag=1
    count := true               !> count=1
    count := 6 / 2              !> count=3
    level := count              !> level=3
    level := -count / 2         !> level=-1.5
    isOn := DI2_0 == flag
    isOn := DI2_0 + 1 == flag   !> isOn=1
    flag := NOT "a" <> "b"      !> flag=0
    count := level              !> fault: -1.5 is no int
ENDPROC
