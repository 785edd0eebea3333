! Time does not run backwards.
GLOBAL PROC main()
    Wait(-1)                                    !> fault: a task waits 0 to 86400 seconds
ENDPROC
