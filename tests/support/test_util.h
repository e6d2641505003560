#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "core/dm_string.h"
#include "core/dm_utf8_str.h"
#include "model/zlKeyFile.h"

namespace ztest {

// A pass phrase of 32 bytes: no salt, so cipher texts are the same in every run.
inline const char* kLongPass = "correct horse battery staple 32b";
inline const char* kShortPass = "8bytes!!";

inline dunmar::dm_string widePath(const std::filesystem::path& p) {
#ifdef _WIN32
    return dunmar::dm_string(p.wstring());
#else
    return dunmar::dm_string(p.u16string());
#endif
}

inline std::string readBytes(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline void writeBytes(const std::filesystem::path& p, const std::string& bytes) {
    std::ofstream out(p, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::filesystem::path dataFile(const char* name) {
    return std::filesystem::path(ZELTO_TEST_DATA_DIR) / "model" / name;
}

// A fresh folder that is removed with the object.
class TempDir {
  public:
    TempDir() {
        static int counter = 0;
        const auto base = std::filesystem::temp_directory_path();
        for (;;) {
            path_ = base /
                    ("zelto-test-" + std::to_string(std::rand()) + "-" + std::to_string(++counter));
            if (std::filesystem::create_directory(path_))
                break;
        }
    }
    ~TempDir() {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const char* name) const { return path_ / name; }

  private:
    std::filesystem::path path_;
};

inline dunmar::dm_utf8_str enc(const Zelto::zlEncrypt& cipher, const char* plain) {
    dunmar::dm_utf8_str out;
    cipher.encrypt(dunmar::dm_utf8_str(plain), out);
    return out;
}

inline std::string dec(const Zelto::zlEncrypt& cipher, const dunmar::dm_utf8_str& text) {
    dunmar::dm_utf8_str out;
    cipher.decrypt(text, out);
    return out.str();
}

}  // namespace ztest
