#pragma once

namespace dunmar {

// Window properties of the subclassed hyperlink and list windows. The list keeps its
// previous procedure under the same name as the hyperlink does.
constexpr const wchar_t* kOriginalProcProperty = L"_Hyperlink_Original_Proc_";
constexpr const wchar_t* kFromStaticProperty = L"_Hyperlink_From_Static_";
constexpr const wchar_t* kOriginalFontProperty = L"_Hyperlink_Original_Font_";
constexpr const wchar_t* kUnderlineFontProperty = L"_Hyperlink_Underline_Font_";

}  // namespace dunmar
