! Drives are reached by named registers.
GLOBAL PROC main()
    WriteRegister("ControlwordWrite", 15)       !> ControlwordWrite=15
    WriteRegister("ControlwordWrite", ReadRegister("ControlwordWrite") * 128 + true)    !> ControlwordWrite=1921
    WHILE ReadRegister("TargetReached") == 0
    ENDWHILE
    WriteRegister("ControlwordWrite", 0.5)      !> fault: 0.5 is no int
ENDPROC
