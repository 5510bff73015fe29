// A plugin that keeps references it was given or made is reported at the end.
ProbeHost.LeakString
ProbeHost.LeakObject
Print "done"
