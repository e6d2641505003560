/* Entry of the resource-only modules: they are loaded as data and never run. */
int __stdcall DllMainCRTStartup(void* module, unsigned long reason, void* reserved) {
    (void)module;
    (void)reason;
    (void)reserved;
    return 1;
}
