! A program that calls itself without an end.
GLOBAL PROC main()
    main()                                      !> fault: more than 64 calls inside each other
ENDPROC
