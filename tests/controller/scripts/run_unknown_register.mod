! A name that no drive has.
GLOBAL PROC main()
    WriteRegister("Nonsense", 15)               !> fault: there is no register "Nonsense"
ENDPROC
