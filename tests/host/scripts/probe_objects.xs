// Objects: constructors, initializers in hierarchy order, overriding, operators,
// conversions, new objects from handlers, exceptions raised by handlers.
Var a As New Probe(3)
Var b As New Probe("named")
Print b.Label + " " + Str(b.Count)
Var e As New Probe
Print e.Label
Var sum As Probe = a + b
Print sum
Print a + 10
Print 10 + a
Print 1 - a
Print -a
Print a < b
Print a = New Probe(3)
Print a <> b
Var text As String = a
Print text
Var fromNumber As Probe = 42
Print fromNumber.Count
Var child As New ProbeChild(4)
Print child.Kind(1)
Print child.Kind("s")
Print child.SawParentInitialized
Print child.Depth
Print child IsA Probe
Print a IsA ProbeChild
Var asParent As Probe = child
Print asParent.Count
Print child.Clone.Count
Var copy As Probe = b.Clone
Print copy.Label
Try
  a.Fail("handler failed")
Catch err As ProbeError
  Print "ProbeError: " + err.Message + " #" + Str(err.ErrorNumber)
End Try
Try
  a.StoreThenFail(77)
Catch err As RuntimeException
  Print "kept " + Str(a.Count)
End Try
Try
  Var none As Probe = a.FailReturningNil
  Print "not reached"
Catch err As UnsupportedOperationException
  Print err.Message
Finally
  Print "finally ran"
End Try
Try
  Print a.Slot(9)
Catch err As OutOfBoundsException
  Print err.Message
End Try
Try
  Var nothing As Probe
  Print nothing.Count
Catch err As NilObjectException
  Print "nil: " + err.Message
End Try
Try
  Raise New ProbeError("raised by the script", 5)
Catch err
  Print err.Message + " " + Str(err.ErrorNumber)
End Try
