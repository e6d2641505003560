// Saves of the key file: a failure at any file step keeps the old bytes, and a file that
// another program changed is never overwritten.
#include "app/zlKeyFileStore.h"

#include <regex>

#include "app/zlTexts.h"
#include "app_test_util.h"

// Fails the step at one mark: 0 makes the new file, 1 writes it, 2 flushes, 3 closes, 4
// renames it.
struct FailingLayer : MarkedLayer {
    explicit FailingLayer(long at) : at(at) {}
    bool pass(long mark) override { return mark != at; }
    long at;
};

// The saved tree with one key more, still to be saved.
class KeyFileStore : public ProgramFolder {
  protected:
    void SetUp() override {
        saveKeyFile();
        addKey(file, *file.keys(), {"new"});
    }
    std::string text() { return file.buildFileText(zlLanguageNameForFile()).str(); }
};

TEST_F(KeyFileStore, AFailureAtAnyStepKeepsTheOldBytesAndLeavesNoNewFile) {
    for (long step = 0; step < 5; ++step) {
        FailingLayer layer(step);
        EXPECT_EQ(zlSaveFailed, zlSaveKeyFile(file)) << step;
        EXPECT_EQ(saved, readBytes(dir / "Zelto.xml")) << step;
        EXPECT_FALSE(fs::exists(dir / "Zelto.xml.new")) << step;
    }
    // The failures were no change by another program, nor is a save of our own.
    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(zlSaved, zlSaveKeyFile(file));
        EXPECT_EQ(text(), readBytes(dir / "Zelto.xml"));
    }
}

TEST_F(KeyFileStore, AFileChangedByAnotherProgramStaysAndTheTreeGoesAside) {
    const std::string other = saved + "<!-- another program -->\r\n";
    writeBytes(dir / "Zelto.xml", other);
    const std::regex aside("Zelto\\.conflict\\.\\d{4}(_\\d\\d){5}_\\d{4}\\.xml");
    const std::string folder = u8(files.folder);
    // The change stays unknown to the tree: every later save goes aside as well.
    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(zlSaveConflict, zlSaveKeyFile(file));
        EXPECT_EQ(other, readBytes(dir / "Zelto.xml"));
        const std::string name = u8(file.conflictFile());
        EXPECT_TRUE(name.find(folder) == 0 && std::regex_match(name.substr(folder.size()), aside))
            << name;
        EXPECT_EQ(text(), readBytes(fs::path(name)));
    }
    // A deleted file is no conflict: it is written anew.
    fs::remove(dir / "Zelto.xml");
    ASSERT_EQ(zlSaved, zlSaveKeyFile(file));
    EXPECT_TRUE(file.conflictFile().empty());
    EXPECT_EQ(text(), readBytes(dir / "Zelto.xml"));
}
