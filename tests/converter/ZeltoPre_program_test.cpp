// The converter program itself, started the way the main program starts it.
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "converter/zlLegacyConverter.h"
#include "model/zlVerify.h"
#include "support/legacy_fixture.h"
#include "support/legacy_writer.h"
#include "support/test_util.h"

using namespace Zelto;
namespace fs = std::filesystem;

namespace {

// Runs the built program with the command line tail in folder and answers its exit code,
// or -1 when it could not be started.
long runIn(const fs::path& folder, const std::wstring& arguments) {
    std::wstring exe = fs::path(ZELTO_PRE_EXE).make_preferred().wstring();
    std::wstring line = L"\"" + exe + L"\"" + arguments;
    STARTUPINFOW si = {};
    si.cb = sizeof si;
    PROCESS_INFORMATION pi = {};
    if (!CreateProcessW(nullptr, &line[0], nullptr, nullptr, FALSE, CREATE_UNICODE_ENVIRONMENT,
                        nullptr, folder.wstring().c_str(), &si, &pi))
        return -1;
    WaitForSingleObject(pi.hProcess, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(pi.hProcess, &code);
    CloseHandle(pi.hThread);
    CloseHandle(pi.hProcess);
    return static_cast<long>(code);
}

// "Schlüssel ключ 🔑" reaches the program intact through the wide command line; the exit
// code is the conversion's result.
TEST(ConverterProgram, WidePasswordAndExitCodes) {
    const std::string password =
        "Schl\xC3\xBCssel \xD0\xBA\xD0\xBB\xD1\x8E\xD1\x87 \xF0\x9F\x94\x91";
    const std::wstring quoted = L" \"Schl\u00FCssel \u043A\u043B\u044E\u0447 \U0001F511\"";
    ztest::TempDir dir;
    ztest::LegacyFile legacy;
    legacy.password = password;
    legacy.keys.push_back({{"name", true, "mail"}, {"user", false, "ada"}});
    ztest::writeBytes(dir / "ZeltoPre.xml", ztest::legacyText(legacy));
    EXPECT_EQ(zlConvertUsage, runIn(dir.path(), L""));
    EXPECT_EQ(zlConvertUsage, runIn(dir.path(), quoted + L" second"));
    EXPECT_EQ(zlConvertWrongPassword, runIn(dir.path(), L" \"Schlussel klyuch\""));
    ASSERT_EQ(zlConvertOk, runIn(dir.path(), quoted));
    zlKeyFile out;
    ASSERT_EQ(zlReadOk, out.readFile(ztest::widePath(dir / "ZeltoPre.xml")));
    ASSERT_EQ(0, out.set_pass_phrase(password.c_str()));
    EXPECT_EQ(zlPasswordRight, zlCheckPassword(out));
    EXPECT_EQ(std::vector<std::string>{"name=mail|user=ada"}, ztest::plainKeys(out));
    fs::remove(dir / "ZeltoPre.xml");
    EXPECT_EQ(zlConvertNoFile, runIn(dir.path(), quoted));
}

}  // namespace
