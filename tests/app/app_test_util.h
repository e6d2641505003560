// What the app tests share: short text conversions, keys made from plain texts, and a
// program folder with a saved key file.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "app/zlKeyFields.h"
#include "app/zlKeyFileStore.h"
#include "core/dm_file_layer.h"
#include "model/zlVerify.h"
#include "support/legacy_fixture.h"
#include "support/program_files.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;
namespace fs = std::filesystem;

using Texts = std::vector<std::string>;

inline dm_string w(const std::string& utf8) {
    return dm_utf8_str(utf8).to_wide();
}

inline std::string u8(const dm_string& text) {
    return text.to_utf8().str();
}

namespace ztest {

// A key holding the plain texts in field order (name, label, user, pw, email, url, note).
inline zlFileItemKey* addKey(zlKeyFile& file, zlFileItem& list, const Texts& plain) {
    auto* key = new zlFileItemKey(&file);
    for (size_t i = 0; i < plain.size(); ++i)
        key->setField(zlKeyFieldTypes[i], enc(file, plain[i].c_str()));
    list.appendChild(key);
    return key;
}

// The names of the files in dir, sorted.
inline Texts filesIn(const TempDir& dir) {
    Texts names;
    for (const auto& entry : fs::directory_iterator(dir.path()))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

// The system's file steps, writing in chunks of 64 KiB, with a numbered mark before each
// step: the new file made, each chunk written, flushed, (after) closed, renamed, and one
// after the rename. A step whose mark passes false fails.
struct MarkedLayer : dunmar::dm_file_layer {
    MarkedLayer() { set_current(this); }
    ~MarkedLayer() override { set_current(nullptr); }
    virtual bool pass(long mark) = 0;
    bool next() { return pass(marks++); }
    handle create(const dm_string& path) override {
        return next() ? system().create(path) : no_file;
    }
    bool write(handle file, const char* data, size_t size) override {
        for (size_t done = 0, chunk = 64 * 1024; done < size; done += chunk)
            if (!next() || !system().write(file, data + done, std::min(chunk, size - done)))
                return false;
        return true;
    }
    bool flush(handle file) override { return next() && system().flush(file); }
    bool close(handle file) override { return system().close(file) && next(); }
    bool rename(const dm_string& from, const dm_string& to, bool overwrite) override {
        return next() && system().rename(from, to, overwrite) && next();
    }
    void remove(const dm_string& path) override { system().remove(path); }
    long marks = 0;
};

// The program's files in a fresh folder; saveKeyFile writes the key file of a tree with
// settings, two keys and a trashed one under kShortPass.
class ProgramFolder : public ::testing::Test {
  protected:
    void saveKeyFile() {
        file.setPath(files.keyFile);
        ASSERT_EQ(0, file.set_pass_phrase(kShortPass));
        auto* settings = new zlFileItemSettings(&file);
        file.root().appendChild(settings);
        settings->verify = zlMakeVerifyValue(dm_utf8_str(kShortPass));
        settings->autolock = 120;
        ASSERT_TRUE(settings->setUserEmail(dm_utf8_str("ada@example.org"), true));
        file.root().appendChild(new zlFileItemKeys(&file));
        file.root().appendChild(new zlFileItemTrash(&file));
        addKey(file, *file.keys(), {"bank", "money", "ada", "pin 1", "", "https://b.example", "n"});
        addKey(file, *file.keys(), {"mail", "", "ada@b.example", "hunter2!", "", "", "a\r\nb <&>"});
        addKey(file, *file.trash(), {"old shop", "shopping", "ada", "gone"});
        ASSERT_EQ(zlSaved, zlSaveKeyFile(file));
        saved = readBytes(dir / "Zelto.xml");
    }

    TempDir dir;
    zlFileSet files = programFilesIn(dir);
    zlKeyFile file;
    dm_string detail;
    std::string saved;
};

}  // namespace ztest

using namespace ztest;
