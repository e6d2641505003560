// The dialog tests read English texts unless a test sets another language: the automatic
// choice would follow the locale of whatever machine runs them.
#include <gtest/gtest.h>

#include "app/zlTexts.h"

namespace {

class EnglishByDefault : public ::testing::Environment {
  public:
    void SetUp() override { Zelto::zlSetLanguage(Zelto::zlLanguageEnglish); }
};

const ::testing::Environment* const english =
    ::testing::AddGlobalTestEnvironment(new EnglishByDefault);

}  // namespace
