! Conveyor: runs forward until a product lies at the stop. Once per cycle of the task.

GLOBAL PROC main()
    IF NOT DI3_0
        SetDO(DO3_8, true)
    ELSE
        SetDO(DO3_8, false)
    ENDIF
ENDPROC
