! A pulse without a length.
GLOBAL PROC main()
    PulseDO(DO2_0, 0)                           !> fault: a pulse lasts more than 0 and at most 86400 seconds
ENDPROC
