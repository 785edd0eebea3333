! The lift column: a servo drive with the CiA 402 profile behind named registers.
!
!   written   ControlwordWrite, OperationModeWrite, ProfileAcceleWrite, ProfileDeceWrite, ProfileVelocityWrite,
!             PositionWrite, VelocityWrite
!   read      PositionRead, PointAcknowledge, TargetReached, ModesOfOperation
!
! Positions are drive units and velocities drive units a second; the stacking programs reckon with 7000 units to the
! millimetre.

! Manual homing aid, not called by the other programs: drives the column to a known place and stops.
GLOBAL PROC Helper()
    clearAlarm()
    powerOff()
    powerOn()
    setModeToPosition()
    moveTo(70000 * 20, 70000 * 5, true)
    powerOff()
    Wait(1)
    PAUSE
ENDPROC

! Shut down, switched on, operation enabled. In speed mode the drive must not start with an old speed.
GLOBAL PROC powerOn()
    IF ReadRegister("ModesOfOperation") == 3
        WriteRegister("VelocityWrite", 0)
    ENDIF
    WriteRegister("ControlwordWrite", 6)
    Wait(0.01)
    WriteRegister("ControlwordWrite", 7)
    Wait(0.01)
    WriteRegister("ControlwordWrite", 15)
    Wait(1)
ENDPROC

GLOBAL PROC powerOff()
    WriteRegister("ControlwordWrite", 0)
    Wait(1)
ENDPROC

! Profile position mode.
GLOBAL PROC setModeToPosition()
    WriteRegister("OperationModeWrite", 1)
ENDPROC

! Drives to a position; with is_synchronous it comes back when the drive is there. Bit 4 of the control word (31) hands
! over the new target.
GLOBAL PROC moveTo(int target_position, int velocity, bool is_synchronous)
    flag := 0
    WaitUntil(ReadRegister("PointAcknowledge") == 0)
    WriteRegister("ProfileAcceleWrite", -1)
    WriteRegister("ProfileDeceWrite", -1)
    WriteRegister("ProfileVelocityWrite", velocity)
    WriteRegister("PositionWrite", target_position)
    WriteRegister("ControlwordWrite", 31)
    Wait(0.01)
    WriteRegister("ControlwordWrite", 15)
    IF is_synchronous
        WaitUntil(ReadRegister("TargetReached") == 1 AND ReadRegister("PointAcknowledge") == 0)
    ENDIF
ENDPROC

! Profile velocity mode.
GLOBAL PROC setModeTospeed()
    WriteRegister("OperationModeWrite", 3)
ENDPROC

GLOBAL PROC moveAtCertainSpeed(int velocity)
    WriteRegister("ProfileAcceleWrite", -1)
    WriteRegister("ProfileDeceWrite", -1)
    WriteRegister("VelocityWrite", velocity)
ENDPROC

! Acknowledges a fault of the drive. The control word is multiplied by 128, which moves bit 0 to the fault reset bit.
GLOBAL PROC clearAlarm()
    VAR int control_word := ReadRegister("ControlwordWrite")
    WriteRegister("ControlwordWrite", control_word * 128)
    Wait(0.01)
    WriteRegister("ControlwordWrite", control_word)
ENDPROC
