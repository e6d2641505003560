// Every step of running the converter, with other modules standing in for the program's
// own: one without resource 137, one whose 137 is too short, one whose 137 is no program,
// and one whose 137 is the recording fake converter.
#include <windows.h>

#include <tuple>

#include "app/zlConverterRun.h"
#include "app/zlInstance.h"
#include "app_test_util.h"

class ConverterRun : public ProgramFolder {
  protected:
    void SetUp() override { writeBytes(dir / "ZeltoPre.xml", "working copy"); }
    // Makes the module at path (a resource module of this build) the program's instance; it
    // stays loaded while the test program runs.
    void useModule(const char* path) {
        const std::wstring wide = fs::path(path).make_preferred().wstring();
        HMODULE module = LoadLibraryExW(wide.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
        ASSERT_NE(nullptr, module) << path;
        zlSetInstance(module);
    }
    bool run(const char* password) {
        exitCode = 12345;
        return zlRunConverter(files, dm_utf8_str(password), detail, exitCode);
    }
    unsigned long exitCode = 0;
};

// Each step before the converter runs names itself when it fails. Module null: no instance;
// empty: this program, with a folder in the converter's place.
TEST_F(ConverterRun, StepsBeforeTheStart) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {nullptr, "(curApp.GetInstance() returned NULL)", ""},
        {ZELTO_MODULE_NONE, "::FindResource(..) returned NULL", ""},
        {ZELTO_MODULE_SHORT, "::SizeofResource(..) returned a invalid value (< 10 Bytes)", ""},
        {ZELTO_MODULE_NOT_A_PROGRAM, "::CreateProcess(..) returned FALSE",
         "this resource is longer than ten bytes but it is no program"},
        {"", "::CreateFile(..) returned INVALID_HANDLE_VALUE", ""}};
    for (const auto& [module, expected, written] : cases) {
        fs::remove(dir / "ZeltoPre.exe");
        zlSetInstance(module ? GetModuleHandleW(nullptr) : nullptr);
        if (module && *module)
            useModule(module);
        if (module && !*module)
            fs::create_directory(dir / "ZeltoPre.exe");
        EXPECT_FALSE(run("password"));
        EXPECT_EQ(expected, u8(detail));
        EXPECT_EQ(0u, exitCode) << expected;
        EXPECT_EQ(written,
                  fs::is_regular_file(dir / "ZeltoPre.exe") ? readBytes(dir / "ZeltoPre.exe") : "");
    }
}

// The password arrives as one argument, however it is spelt; the folder is the working
// folder; the exit code comes back once the program has ended.
TEST_F(ConverterRun, StartsInTheFolderWithThePasswordAndWaitsForTheExitCode) {
    useModule(ZELTO_MODULE_FAKE);
    const std::string password = "7 w\xC3\xB6rds and \xE2\x9C\x93 signs";
    const DWORD started = GetTickCount();
    EXPECT_FALSE(run(password.c_str()));
    EXPECT_GE(GetTickCount() - started, 1400u);
    EXPECT_EQ(7u, exitCode);
    EXPECT_TRUE(detail.empty());
    const std::string bytes = readBytes(dir / "fake_converter.txt");
    const std::wstring record(reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / 2);
    EXPECT_EQ(fs::path(w(password).str() + L"\n" + dir.path().wstring() + L"\n").make_preferred(),
              fs::path(record).make_preferred());
    EXPECT_TRUE(run("0 means done"));
    EXPECT_EQ(0u, exitCode);
}
