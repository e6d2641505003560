// Entry of the resource-only modules: they are loaded as data and never run.
int DllMainCRTStartup(void) {
    return 1;
}
