! !! 1 there is no procedure "main" in this task
GLOBAL PROC Main()
ENDPROC
