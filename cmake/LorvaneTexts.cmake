# Writes OUT, a C++ file with the texts of the files TEXTS and of the file SOURCES.
set(code "// Made by the build from assets/guide.\n#include \"guidance/guide_texts.h\"\n\nnamespace lorvane {\n\n")

function(add_literal name file)
    file(READ ${file} text)
    set(code "${code}static constexpr std::string_view ${name} = R\"guide(${text})guide\";\n\n" PARENT_SCOPE)
endfunction()

set(names "")
set(number 0)
foreach(file IN LISTS TEXTS)
    math(EXPR number "${number} + 1")
    add_literal(text${number} ${file})
    list(APPEND names text${number})
endforeach()
add_literal(sources ${SOURCES})
list(JOIN names ", " names)

file(WRITE ${OUT} "${code}static constexpr std::string_view texts[] = {${names}};

std::span<const std::string_view> guideTexts() { return texts; }

std::string_view guideSources() { return sources; }

}  // namespace lorvane
")
