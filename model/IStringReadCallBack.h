#pragma once

#include <string>

#include <irrXML.h>

namespace Zelto {

// Hands a text held in memory to the XML parser, which reads it whole at creation.
class IStringReadCallBack : public irr::io::IFileReadCallBack {
  public:
    explicit IStringReadCallBack(std::string text) : text_(std::move(text)) {}

    int read(void* buffer, int sizeToRead) override;
    long getSize() const override { return static_cast<long>(text_.size()); }

    // The parser keeps its own copy; dropping ours halves the memory of a large file.
    void release() { std::string().swap(text_); }

  private:
    std::string text_;
    size_t position_ = 0;
};

}  // namespace Zelto
