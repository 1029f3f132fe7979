# One language of the manual as a web page: Markdown through cmark-gfm into page.html, with the
# anchors that a code host gives to headings, and the pictures beside it.
#
# cmake -DCMARK_GFM=... -DLANGUAGE=de -DSOURCE=docs/manual -DOUTPUT=... -P render.cmake

cmake_minimum_required(VERSION 3.25)

# The anchor of a heading, by the rule of the code hosts: lower case, no punctuation, blanks as
# hyphens.
function(anchor_of html result)
    string(REGEX REPLACE "<[^>]*>|&[a-z]+;" "" text "${html}")
    string(TOLOWER "${text}" text)
    foreach(pair Ää Öö Üü)
        string(SUBSTRING "${pair}" 0 2 upper)
        string(SUBSTRING "${pair}" 2 2 lower)
        string(REPLACE "${upper}" "${lower}" text "${text}")
    endforeach()
    string(REGEX REPLACE "[]!\"#$%&'()*+,./:;<=>?@[\\^`{|}~]" "" text "${text}")
    string(REPLACE " " "-" text "${text}")
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

execute_process(
    COMMAND ${CMARK_GFM} --extension table --extension autolink --validate-utf8
        ${SOURCE}/${LANGUAGE}.md
    OUTPUT_VARIABLE body
    COMMAND_ERROR_IS_FATAL ANY)

# CMake would take these for the syntax of lists.
foreach(code RANGE 1 3)
    string(ASCII ${code} stand_in_${code})
endforeach()
string(REPLACE ";" "${stand_in_1}" body "${body}")
string(REPLACE "[" "${stand_in_2}" body "${body}")
string(REPLACE "]" "${stand_in_3}" body "${body}")

string(REGEX MATCHALL "<h[1-6]>[^\n]*</h[1-6]>" headings "${body}")
list(REMOVE_DUPLICATES headings)
foreach(heading IN LISTS headings)
    string(REGEX REPLACE "^<h[1-6]>(.*)</h[1-6]>$" "\\1" text "${heading}")
    anchor_of("${text}" anchor)
    string(REGEX REPLACE "^<(h[1-6])>" "<\\1 id=\"${anchor}\">" marked "${heading}")
    string(REPLACE "${heading}" "${marked}" body "${body}")
endforeach()

# Wide tables scroll by themselves and not the page.
string(REPLACE "<table>" "<div class=\"table\"><table>" body "${body}")
string(REPLACE "</table>" "</table></div>" body "${body}")
# Each language has a folder of its own here.
string(REGEX REPLACE "href=\"(de|en)\\.md([^\"]*)\"" "href=\"../\\1/index.html\\2\"" body "${body}")
string(REPLACE "src=\"pictures/${LANGUAGE}/" "src=\"pictures/" body "${body}")
# A click shows a picture in its own size.
string(REGEX REPLACE "<p>(<img src=\"([^\"]*)\"[^>]*>)</p>"
    "<p><a href=\"\\2\">\\1</a></p>" body "${body}")

string(REGEX MATCH "<h1[^>]*>([^<]*)</h1>" title "${body}")
set(title "${CMAKE_MATCH_1}")
file(READ ${SOURCE}/page.html page)
string(REPLACE "@language@" "${LANGUAGE}" page "${page}")
string(REPLACE "@title@" "${title}" page "${page}")
string(REPLACE "@body@" "${body}" page "${page}")
string(REPLACE "${stand_in_1}" ";" page "${page}")
string(REPLACE "${stand_in_2}" "[" page "${page}")
string(REPLACE "${stand_in_3}" "]" page "${page}")

set(folder ${OUTPUT}/${LANGUAGE})
file(REMOVE_RECURSE ${folder})
file(WRITE ${folder}/index.html "${page}")
file(COPY ${SOURCE}/manual.css DESTINATION ${folder})
file(GLOB pictures ${SOURCE}/pictures/${LANGUAGE}/*.png ${SOURCE}/pictures/${LANGUAGE}/*.svg)
file(COPY ${pictures} DESTINATION ${folder}/pictures)
