// A save killed at any moment leaves the key file with its old bytes or its new ones, never
// anything in between. The saving process is a child of the test, killed with SIGKILL as
// soon as it tells that it reached a randomly chosen point of its file steps.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <string>

#include "app/zlKeyFileStore.h"
#include "app/zlTexts.h"
#include "core/dm_file_layer.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_string;
namespace fs = std::filesystem;

namespace {

constexpr int kKeys = 10000;
constexpr int kKills = 50;
constexpr size_t kChunk = 64 * 1024;

void addKey(zlKeyFile& file, const std::string& n) {
    auto* key = new zlFileItemKey(&file);
    key->setField(zlTypeKeyName, ztest::enc(file, ("Account " + n).c_str()));
    key->setField(zlTypeKeyUser, ztest::enc(file, ("user." + n).c_str()));
    key->setField(zlTypeKeyPW, ztest::enc(file, ("pw-" + n + "-Xy7#kq9").c_str()));
    file.keys()->appendChild(key);
}

// The system's file steps, writing in chunks and telling through a pipe when the save
// passes its point-th mark: the new file made, each chunk written, flushed, closed, renamed.
struct TellingLayer : dunmar::dm_file_layer {
    TellingLayer() { set_current(this); }
    ~TellingLayer() override { set_current(nullptr); }

    handle create(const dm_string& path) override { return passed(system().create(path)); }
    bool write(handle file, const char* data, size_t size) override {
        for (size_t done = 0; done < size; done += kChunk)
            if (!passed(system().write(file, data + done, std::min(kChunk, size - done))))
                return false;
        return true;
    }
    bool flush(handle file) override { return passed(system().flush(file)); }
    bool close(handle file) override { return passed(system().close(file)); }
    bool rename(const dm_string& from, const dm_string& to, bool overwrite) override {
        return passed(system().rename(from, to, overwrite));
    }
    void remove(const dm_string& path) override { system().remove(path); }

    template <typename T>
    T passed(T result) {
        if (marks++ == point)
            static_cast<void>(::write(pipeEnd, "!", 1));
        return result;
    }

    int pipeEnd = -1;
    long point = -1;
    long marks = 0;
};

#if defined(__SANITIZE_ADDRESS__)
#define ZELTO_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZELTO_ASAN 1
#endif
#endif

TEST(KeyFileStoreKill, ASaveKilledAtAnyMomentLeavesTheOldOrTheNewFile) {
#ifdef ZELTO_ASAN
    // Forking a sanitized process that holds 10,000 keys is slow, and the file steps hold
    // no memory errors the other tests would not find: the plain host build runs this.
    GTEST_SKIP() << "run in the host build";
#endif
    // Seconds long: scripts/test.sh asks for it, quick runs (mutation checks) leave it out.
    if (std::getenv("ZELTO_SLOW_TESTS") == nullptr)
        GTEST_SKIP() << "set ZELTO_SLOW_TESTS=1 to run";
    ztest::TempDir dir;
    const fs::path path = dir / "Zelto.xml";
    zlKeyFile file;
    file.setPath(ztest::widePath(path));
    ASSERT_EQ(0, file.set_pass_phrase(ztest::kLongPass));
    file.root().appendChild(new zlFileItemKeys(&file));
    for (int i = 0; i < kKeys; ++i)
        addKey(file, std::to_string(i));
    ASSERT_EQ(zlSaved, zlSaveKeyFile(file));
    const std::string old = ztest::readBytes(path);
    addKey(file, "new");
    const std::string fresh = file.buildFileText(zlLanguageNameForFile()).str();

    TellingLayer layer;
    const long marks = 1 + static_cast<long>((fresh.size() + kChunk - 1) / kChunk) + 3;
    std::mt19937 random(std::random_device{}());
    std::uniform_int_distribution<long> point(0, marks - 1);
    int kills = 0, asOld = 0, asNew = 0, round = 0;
    for (; kills < kKills && round < 2 * kKills; ++round) {
        ztest::writeBytes(path, old);
        int ends[2];
        ASSERT_EQ(0, pipe(ends));
        layer.pipeEnd = ends[1];
        layer.point = point(random);
        const pid_t child = fork();
        if (child == 0)
            _exit(zlSaveKeyFile(file) == zlSaved ? 0 : 1);
        close(ends[1]);
        char byte = 0;
        // Nothing to read when the child ended first.
        if (read(ends[0], &byte, 1) == 1)
            kill(child, SIGKILL);
        close(ends[0]);
        int status = 0;
        waitpid(child, &status, 0);
        if (!WIFSIGNALED(status))
            continue;
        ++kills;
        const std::string now = ztest::readBytes(path);
        ASSERT_TRUE(now == old || now == fresh)
            << "kill after mark " << layer.point << ": " << now.size() << " bytes";
        (now == old ? asOld : asNew) += 1;
    }
    EXPECT_EQ(kKills, kills);
    std::cout << "kill test: " << kills << " kills, " << asOld + asNew << " old-or-new (" << asOld
              << " old, " << asNew << " new; " << round << " saves of " << fresh.size()
              << " bytes)\n";
}

}  // namespace
