#include "converter/zlConverterCommand.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "converter/zlLegacyConverter.h"
#include "support/legacy_fixture.h"
#include "support/legacy_writer.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;

namespace {

class ConverterCommand : public ::testing::Test {
  protected:
    void SetUp() override {
        ztest::LegacyFile legacy;
        legacy.password = password;
        legacy.keys.push_back({{"name", true, "shop"}, {"pw", true, "1234"}});
        before = ztest::legacyText(legacy);
        ztest::writeBytes(file, before);
    }
    int run(const std::vector<dm_string>& arguments) {
        return zlConverterCommand(arguments, ztest::widePath(file));
    }

    // UTF-8 of a password outside every single-byte code page.
    const std::string password = "\xE5\xAF\x86\xE7\xA0\x81 \xF0\x9F\x94\x91 key";
    ztest::TempDir dir;
    std::filesystem::path file = dir / "ZeltoPre.xml";
    std::string before;
};

// Exactly one well-formed argument; otherwise the file stays as it was.
TEST_F(ConverterCommand, WrongArgumentsAreAUsageError) {
    const dm_string pw = dm_utf8_str(password).to_wide();
    const dunmar::dm_wchar lone[] = {'p', 'a', 's', 's', 'w', 'o', 'r', 'd', 0xD800, 0};
    const std::vector<std::vector<dm_string>> cases = {{}, {pw, pw}, {dm_string(lone)}};
    for (size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(zlConvertUsage, run(cases[i])) << "case " << i;
    EXPECT_EQ(before, ztest::readBytes(file));
}

TEST_F(ConverterCommand, WidePasswordConvertsUnderItsUtf8Bytes) {
    ASSERT_EQ(zlConvertOk, run({dm_utf8_str(password).to_wide()}));
    zlKeyFile out;
    ASSERT_EQ(zlReadOk, out.readFile(ztest::widePath(file)));
    ASSERT_EQ(0, out.set_pass_phrase(password.c_str()));
    EXPECT_EQ(std::vector<std::string>{"name=shop|pw=1234"}, ztest::plainKeys(out));
}

}  // namespace
