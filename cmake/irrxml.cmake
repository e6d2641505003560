# The XML pull parser, compiled from Debian's irrlicht source package. The sources are
# fetched into the build tree, never committed. Changes made to the fetched copy:
# - the reader's list of character references is replaced by the longer list the key file
#   needs (the first matching entry wins, so the order matters);
# - text nodes of white space only are delivered, because the reader's "last text" rule
#   depends on them;
# - its scans stop at the end of the text (see below).
set(ZELTO_IRRXML_DIR ${PROJECT_SOURCE_DIR}/build/third_party/irrlicht CACHE PATH
    "Unpacked irrlicht sources (fetched when missing)")

if(NOT EXISTS ${ZELTO_IRRXML_DIR}/source/Irrlicht/irrXML.cpp)
    message(STATUS "Fetching irrXML sources into ${ZELTO_IRRXML_DIR}")
    execute_process(COMMAND ${PROJECT_SOURCE_DIR}/scripts/fetch-irrxml.sh ${ZELTO_IRRXML_DIR}
                    RESULT_VARIABLE fetch_result)
    if(NOT fetch_result EQUAL 0)
        message(FATAL_ERROR "could not fetch the irrlicht sources")
    endif()
endif()

set(irr_out ${CMAKE_BINARY_DIR}/irrxml)
file(MAKE_DIRECTORY ${irr_out})

file(READ ${ZELTO_IRRXML_DIR}/source/Irrlicht/CXMLReaderImpl.h impl)

set(stock_list [=[		SpecialCharacters.push_back("&amp;");
		SpecialCharacters.push_back("<lt;");
		SpecialCharacters.push_back(">gt;");
		SpecialCharacters.push_back("\"quot;");
		SpecialCharacters.push_back("'apos;");
]=])
# Character first, then the text after the "&". Hexadecimal forms match in upper case only.
set(key_file_list [=[		static const char* const refs[] = {
			"&amp;", "&#38;", "&#x26;",
			"<lt;", "<#60;", "<#x3C;",
			">gt;", ">#62;", ">#x3E;",
			"\"quot;", "\"#34;", "\"#x22;",
			"'apos;", "'#39;", "'#x27;",
			"\x07#7;", "\x07#x7;",
			"\x08#8;", "\x08#x8;",
			"\x09#9;", "\x09#x9;",
			"\x0A#10;", "\x0A#xA;",
			"\x0B#11;", "\x0B#xB;",
			"\x0C#12;", "\x0C#xC;",
			"\x0D#13;", "\x0D#xD;",
			"'#39;", "'#x27;",
			"?#63;", "?#x3F;",
			"\\#92;", "\\#x5C;"
		};
		for (unsigned i = 0; i < sizeof(refs) / sizeof(refs[0]); ++i)
			SpecialCharacters.push_back(refs[i]);
]=])

# Replaces every occurrence of `from` by `to` in impl; stops the build when it is absent,
# since a changed upstream text means the patch needs looking at again.
function(zelto_irrxml_patch from to)
    string(FIND "${impl}" "${from}" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "irrXML: '${from}' not found; the build-time patch needs updating")
    endif()
    string(REPLACE "${from}" "${to}" patched "${impl}")
    set(impl "${patched}" PARENT_SCOPE)
endfunction()

zelto_irrxml_patch("${stock_list}" "${key_file_list}")
zelto_irrxml_patch("IgnoreWhitespaceText(true)" "IgnoreWhitespaceText(false)")

# The stock scans look for '>' or a quote without stopping at the end of the text, so a
# truncated file (a tag, comment or attribute cut off) reads past the buffer. Every scan
# stops at the terminating zero; the buffer ends in four of them, so the single step the
# parser takes past a scan's end stays inside it, and read() then sees the end.
zelto_irrxml_patch("while(*P != L'>')" "while(*P != L'>' && *P)")
zelto_irrxml_patch("while(*P != L'>' && !isWhiteSpace(*P))" "while(*P != L'>' && *P && !isWhiteSpace(*P))")
zelto_irrxml_patch("while(!isWhiteSpace(*P) && *P != L'=')" "while(!isWhiteSpace(*P) && *P != L'=' && *P)")
zelto_irrxml_patch("		while(count)\n" "		while(count && *P)\n")
# An attribute cut off ends the element early with the previous node's name still set,
# which would repeat that element: report such a node as unknown instead.
zelto_irrxml_patch("if (!*P) // malformatted xml file"
                   "if (!*P) CurrentNodeType = EXN_UNKNOWN;\n\t\t\t\t\tif (!*P)")
# Text with a UTF-16 or UTF-32 byte order mark is converted into a buffer without any
# terminating zero, and a byte-swapped source is walked up to a zero character that an
# odd size may leave outside the buffer: give both buffers zeros to spare.
zelto_irrxml_patch("char* data8 = new char[size];" "char* data8 = new char[size + 4]();")
zelto_irrxml_patch("TextData = new char_type[sizeWithoutHeader];"
                   "TextData = new char_type[sizeWithoutHeader + 4]();")
# A comment shorter than "<!-- -->" (or cut off) would give a negative length.
zelto_irrxml_patch("(int)(P - pCommentBegin-2)" "(int)(P - pCommentBegin - 2 > 0 ? P - pCommentBegin - 2 : 0)")

# Written through a copy so that an unchanged result does not trigger a rebuild.
file(WRITE ${irr_out}/CXMLReaderImpl.h.new "${impl}")
configure_file(${irr_out}/CXMLReaderImpl.h.new ${irr_out}/CXMLReaderImpl.h COPYONLY)
configure_file(${ZELTO_IRRXML_DIR}/source/Irrlicht/irrXML.cpp ${irr_out}/irrXML.cpp COPYONLY)

add_library(irrxml STATIC ${irr_out}/irrXML.cpp ${PROJECT_SOURCE_DIR}/cmake/irrxml_locale.cpp)
target_include_directories(irrxml SYSTEM PUBLIC ${irr_out} ${ZELTO_IRRXML_DIR}/include)
target_compile_definitions(irrxml PUBLIC _IRR_STATIC_LIB_)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(irrxml PRIVATE -w)
endif()
set_target_properties(irrxml PROPERTIES POSITION_INDEPENDENT_CODE ON)
