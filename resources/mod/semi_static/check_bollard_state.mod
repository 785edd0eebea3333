! Stop and start buttons while the lift column is in use. Once per cycle of the task.
!
!   use_rise    0 not in use, 1 in use, 2 stopped by the operator
!
! Needs the lift column's procedures (file Helper of this task).

GLOBAL PROC main()
    IF DI2_1 AND use_rise == 1
        powerOff()
        use_rise := 2
    ENDIF
    IF DI2_0 AND use_rise == 2
        clearAlarm()
        powerOff()
        setModeToPosition()
        powerOn()
        use_rise := 1
    ENDIF
ENDPROC
