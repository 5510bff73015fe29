// A shared library that is not a plugin: it has no REALPluginMain.
extern "C" __attribute__((visibility("default"))) int SomethingElse()
{
    return 1;
}
