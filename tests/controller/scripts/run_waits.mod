! Waiting for time and for conditions. A loop that changes nothing takes no turns until something changes.
!@ at 2 DI2_0 1
!@ at 4 count 3
!@ at 9 relax 1
!@ var int count
!@ var double time
!@ var clock clock0
GLOBAL PROC main()
    ClockStart(clock0)                          !> clock0=0 runs
    Wait(0.5)
    SetDO(DO2_0, true)                          !> DO2_0=1@0.5
    SetDO(DO3_15, NOT DO2_0)                    !> DO3_15=0@0.5
    WaitUntil(DI2_0 AND NOT relax)
    time := ClockRead(clock0)                   !> time=2@2
    PulseDO(DO2_1, 1.5)                         !> DO2_1 pulse 1.5@2
    WHILE count <> 3
        IF DI2_1
            count := 3
        ENDIF
    ENDWHILE
    ClockStop(clock0)                           !> clock0=4@4
    Wait(1)
    ClockStart(clock0)                          !> clock0=4 runs@5
    WaitUntil(ClockRead(clock0) > 5.5)
    SetDO(DO2_0, false)                         !> DO2_0=0@6.6
    ClockReset(clock0)                          !> clock0=0@6.6
    Wait(0)
    WHILE true
        WHILE NOT relax
            VAR int inner := 5
            touch(inner)
        ENDWHILE
        WaitUntil(estop0)                       !> stands@9
    ENDWHILE
ENDPROC

PROC touch(int a)
    VAR int local := 7
    local := local + a
ENDPROC
