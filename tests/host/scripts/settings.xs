// options: --version 2014.01 --ide --new-runs-constructor --hide REALGetPropValueCurrency
// What the host says about itself, and the settings a plugin must cope with.
Print ProbeHost.Version
Print ProbeHost.InRuntime
Print Probe.Make(1).Label
Print Probe.Make(2).Clone.Label
Var cash As Currency = 2
Print ProbeHost.VariantCurrency(cash)
