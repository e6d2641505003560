#pragma once

#include "core/dm_utf8_str.h"
#include "crypto/zlEncrypt.h"

namespace Zelto {

// Reads values of the older key file format: the same construction as zlEncrypt, but each
// byte written as its plain upper-case hexadecimal pair instead of through the code table.
class zlHexCipher {
  public:
    // Same rules and results as zlEncrypt::set_pass_phrase.
    int set_pass_phrase(const char* pass_phrase) { return phrase_.set_pass_phrase(pass_phrase); }
    const std::string& pass_phrase() const { return phrase_.pass_phrase(); }

    // Replaces out; results as zlEncrypt::decrypt. Pairs that are not upper-case hexadecimal
    // are dropped, so a damaged text gives other bytes rather than a failure.
    int decrypt(const dunmar::dm_utf8_str& text, dunmar::dm_utf8_str& out) const;

  private:
    zlEncrypt phrase_;  // holds and checks the pass phrase; its code table is not used
};

}  // namespace Zelto
