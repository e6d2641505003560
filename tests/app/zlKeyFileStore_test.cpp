// Saves of the key file: a failure at any file step keeps the old bytes, and a file that
// another program changed is never overwritten.
#include "app/zlKeyFileStore.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/dm_file_layer.h"
#include "support/legacy_fixture.h"
#include "support/test_util.h"

#ifdef _WIN32
#include <windows.h>
#endif

using namespace Zelto;
using dunmar::dm_file_layer;
using dunmar::dm_string;
namespace fs = std::filesystem;

namespace {

using Keys = std::vector<std::string>;

// The system's file steps, one of which fails; a failing write puts half the bytes down,
// as a full disk does.
class FailingLayer : public dm_file_layer {
  public:
    enum Step { kCreate, kWrite, kFlush, kClose, kRename };
    explicit FailingLayer(Step step) : step_(step) { dm_file_layer::set_current(this); }
    ~FailingLayer() override { dm_file_layer::set_current(nullptr); }

    handle create(const dm_string& path) override {
        return step_ == kCreate ? no_file : real().create(path);
    }
    bool write(handle file, const char* data, size_t size) override {
        if (step_ != kWrite)
            return real().write(file, data, size);
        real().write(file, data, size / 2);
        return false;
    }
    bool flush(handle file) override { return real().flush(file) && step_ != kFlush; }
    bool close(handle file) override { return real().close(file) && step_ != kClose; }
    bool rename(const dm_string& from, const dm_string& to, bool overwrite) override {
        return step_ != kRename && real().rename(from, to, overwrite);
    }
    void remove(const dm_string& path) override { real().remove(path); }

  private:
    static dm_file_layer& real() { return dm_file_layer::system(); }
    Step step_;
};

class KeyFileStore : public ::testing::Test {
  protected:
    void SetUp() override {
        file.setPath(ztest::widePath(path));
        ASSERT_EQ(0, file.set_pass_phrase(ztest::kShortPass));
        file.root().appendChild(new zlFileItemKeys(&file));
        addKey("bank");
        ASSERT_EQ(zlSaved, zlSaveKeyFile(file));
        old = ztest::readBytes(path);
        addKey("mail");  // the change still to be saved
    }

    void addKey(const char* name) {
        auto* key = new zlFileItemKey(&file);
        key->setField(zlTypeKeyName, ztest::enc(file, name));
        file.keys()->appendChild(key);
    }

    Keys keysIn(const fs::path& at) const {
        zlKeyFile again;
        EXPECT_EQ(0, again.set_pass_phrase(ztest::kShortPass));
        EXPECT_EQ(zlReadOk, again.readFile(ztest::widePath(at)));
        return ztest::plainKeys(again);
    }

    std::vector<fs::path> conflictFiles() const {
        std::vector<fs::path> found;
        for (const auto& entry : fs::directory_iterator(dir.path()))
            if (entry.path().filename().string().rfind("Zelto.conflict.", 0) == 0)
                found.push_back(entry.path());
        return found;
    }

    ztest::TempDir dir;
    fs::path path = dir / "Zelto.xml";
    zlKeyFile file;
    std::string old;
};

TEST_F(KeyFileStore, AFailureAtAnyStepKeepsTheOldBytesAndLeavesNoNewFile) {
    for (FailingLayer::Step step :
         {FailingLayer::kCreate, FailingLayer::kWrite, FailingLayer::kFlush, FailingLayer::kClose,
          FailingLayer::kRename}) {
        SCOPED_TRACE(step);
        FailingLayer layer(step);
        EXPECT_EQ(zlSaveFailed, zlSaveKeyFile(file));
        EXPECT_EQ(old, ztest::readBytes(path));
        EXPECT_FALSE(fs::exists(dir / "Zelto.xml.new"));
    }
#ifdef _WIN32
    // Another program holds the file open: it cannot be replaced.
    HANDLE held = CreateFileW(ztest::widePath(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    EXPECT_EQ(zlSaveFailed, zlSaveKeyFile(file));
    CloseHandle(held);
    EXPECT_EQ(old, ztest::readBytes(path));
    EXPECT_FALSE(fs::exists(dir / "Zelto.xml.new"));
#endif
    // The failures were no change by another program: the next save goes through.
    ASSERT_EQ(zlSaved, zlSaveKeyFile(file));
    EXPECT_EQ((Keys{"name=bank", "name=mail"}), keysIn(path));
    EXPECT_TRUE(conflictFiles().empty());
}

TEST_F(KeyFileStore, AFileChangedByAnotherProgramStaysAndTheTreeGoesAside) {
    const std::string other = old + "<!-- another program -->\r\n";
    ztest::writeBytes(path, other);
    ASSERT_EQ(zlSaveConflict, zlSaveKeyFile(file));
    EXPECT_EQ(other, ztest::readBytes(path));
    const std::vector<fs::path> aside = conflictFiles();
    ASSERT_EQ(1u, aside.size());
    EXPECT_TRUE(ztest::widePath(aside[0]).equals(file.conflictFile()));
    EXPECT_EQ(".xml", aside[0].extension().string());
    EXPECT_EQ((Keys{"name=bank", "name=mail"}), keysIn(aside[0]));
    // The other program's change is still unknown to the tree: the next save goes aside too.
    EXPECT_EQ(zlSaveConflict, zlSaveKeyFile(file));
    EXPECT_EQ(other, ztest::readBytes(path));

    // A deleted file is no conflict: it is written anew.
    fs::remove(path);
    ASSERT_EQ(zlSaved, zlSaveKeyFile(file));
    EXPECT_TRUE(file.conflictFile().empty());
    EXPECT_EQ((Keys{"name=bank", "name=mail"}), keysIn(path));
}

}  // namespace
