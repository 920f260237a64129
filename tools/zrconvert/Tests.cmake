# SPDX-License-Identifier: MIT
set(data "${CMAKE_CURRENT_SOURCE_DIR}/data")
set(made "${CMAKE_CURRENT_BINARY_DIR}/data")

function(add_conversion_test name input expected magic)
  add_test(NAME zrconvert_${name} COMMAND ${CMAKE_COMMAND}
    -DPROGRAM=$<TARGET_FILE:zrconvert> "-DOPTIONS=${ARGN}" -DINPUT=${input} -DOUTPUT=${made}/${name}.out
    -DEXPECTED=${expected} -DMAGIC=${magic} -P ${CMAKE_CURRENT_SOURCE_DIR}/CheckConversion.cmake)
endfunction()

function(add_report_test name status channel pattern)
  add_test(NAME zrconvert_${name} COMMAND ${CMAKE_COMMAND}
    -DPROGRAM=$<TARGET_FILE:zrconvert> "-DARGUMENTS=${ARGN}" -DSTATUS=${status} -DCHANNEL=${channel}
    "-DPATTERN=${pattern}" -P ${PROJECT_SOURCE_DIR}/cmake/RunAndCheck.cmake)
endfunction()

file(READ "${data}/order.formatted.xml" text)
string(REPLACE "\n" "\r\n" text "${text}")
file(WRITE "${made}/order.crlf.xml" "${text}")
add_conversion_test(namespaces ${data}/order.xml ${data}/order.converted.xml "")
add_conversion_test(no_namespace_below_a_default ${data}/local.xml ${data}/local.converted.xml "" --from auto --to xml)
add_conversion_test(format ${data}/order.xml ${data}/order.formatted.xml "" --format)
add_conversion_test(last_format_option_wins ${data}/order.xml ${data}/order.converted.xml "" --format --no-format)
add_conversion_test(crlf ${data}/order.xml ${made}/order.crlf.xml "" --format --eol crlf)
add_conversion_test(sections_kept ${data}/sections.xml ${data}/sections.kept.xml "" --keep-cdata)
add_conversion_test(sections_escaped ${data}/sections.xml ${data}/sections.escaped.xml "")
add_conversion_test(gzip ${data}/order.xml ${data}/order.converted.xml 1f8b --compress=gzip)
add_conversion_test(zlib ${data}/order.xml ${data}/order.converted.xml 78 --compress=zlib)

# Through another format and back gives what the direct way gives, once indentation is gone.
function(add_detour_test name options input expected)
  add_test(NAME zrconvert_${name} COMMAND sh -c
    "\"$1\" $2 \"$3\" | \"$1\" --format - | diff - \"$4\""
    sh $<TARGET_FILE:zrconvert> ${options} ${input} ${expected})
endfunction()
add_detour_test(through_json "--to json" ${data}/order.xml ${data}/order.formatted.xml)
add_detour_test(through_formatted_json "--to json --format" ${data}/order.xml ${data}/order.formatted.xml)
add_detour_test(through_fast_infoset "--to finf" ${data}/order.xml ${data}/order.formatted.xml)
add_detour_test(through_compressed_fast_infoset "--to finf --compress gzip" ${data}/order.xml ${data}/order.formatted.xml)
add_detour_test(through_compressed_json "--to json --compress zlib" ${data}/order.xml ${data}/order.formatted.xml)
add_detour_test(escapes_of_json "--from json" ${data}/escapes.json ${data}/escapes.xml)
add_conversion_test(json_plain ${data}/plain.json ${data}/plain.json "" --to json --json-mode 0)
add_conversion_test(json_sections ${data}/sections.xml ${data}/sections.json "" --to json --keep-cdata)

# Through pipes, from and to standard streams, compressed in between.
add_test(NAME zrconvert_standard_streams COMMAND sh -c
  "cat \"$2\" | \"$1\" --compress gzip - | \"$1\" - - | cmp - \"$3\""
  sh $<TARGET_FILE:zrconvert> ${data}/order.xml ${data}/order.converted.xml)

file(WRITE "${made}/broken.xml" "<a>\n<b></a>")
file(WRITE "${made}/short.xml" "<a/>")
file(WRITE "${made}/empty.xml" "")
string(REPEAT "<a>" 1100 text)
string(REPEAT "</a>" 1100 end)
file(WRITE "${made}/deep.xml" "${text}${end}")
add_report_test(malformed 1 error "^zrconvert: cannot read .*broken.xml\n.*mismatched tag[^\n]*line 2\n  At line 2, column 6\n$"
  ${made}/broken.xml ${made}/refused.out)
add_report_test(empty 1 error "^zrconvert: cannot read .*empty.xml\n[^\n]*empty" ${made}/empty.xml)
add_report_test(deep 1 error "nesting is too deep" ${made}/deep.xml)
add_report_test(missing_file 1 error "^zrconvert: cannot read .*missing.xml\nNo such file or directory\n$"
  ${made}/missing.xml)
add_report_test(directory 1 error "^zrconvert: cannot read .*\nIs a directory\n$" ${made})
add_report_test(short_compressed 1 error "^zrconvert: cannot write standard output\nFailed to compress data"
  --compress zlib ${made}/short.xml)
add_report_test(disk_full 1 error "^zrconvert: cannot write /dev/full\nNo space left on device\n$"
  ${made}/short.xml /dev/full)
file(WRITE "${made}/two.json" "{\"a\": 1, \"b\": 2}")
file(WRITE "${made}/cut.json" "{\"a\":\n[1,")
add_report_test(json_roots 1 error "must hold exactly one root element" ${made}/two.json)
add_report_test(json_cut 1 error "Expected Array terminator character '\\]' at line 2, position 3.\n  Path: ..a\\[1\\]\n$"
  ${made}/cut.json)
add_report_test(not_fast_infoset 1 error "not a Fast Infoset document" --from finf ${data}/order.xml)
add_report_test(unknown_mode 2 error "--json-mode does not know '3'" --json-mode 3 ${made}/short.xml)
add_report_test(no_input 2 error "^zrconvert: no input is named\n" --format)
add_report_test(three_files 2 error "more than two files" a b c)
add_report_test(unknown_option 2 error "unknown option: --bogus\n" --bogus ${made}/short.xml)
add_report_test(unknown_letter 2 error "unknown option: -q\n" ${made}/short.xml -qx)
add_report_test(unknown_format 2 error "--to does not know 'text'" --to text ${made}/short.xml)
add_report_test(unknown_line_end 2 error "--eol does not know 'cr'" --eol=cr ${made}/short.xml)
add_report_test(missing_value 2 error "needs a value: --compress" ${made}/short.xml --compress)
add_report_test(help 0 output "^Usage: .*--from auto.xml.json.finf .*--keep-cdata.*Exit status" --help)
add_report_test(version 0 output "^zrconvert ${PROJECT_VERSION}\n$" --version)
