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
add_report_test(malformed 1 error "^zrconvert: cannot read .*broken.xml\n.*mismatched tag[^\n]*line 2\n$"
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
add_report_test(no_input 2 error "^zrconvert: no input is named\n" --format)
add_report_test(three_files 2 error "more than two files" a b c)
add_report_test(unknown_option 2 error "unknown option: --bogus\n" --bogus ${made}/short.xml)
add_report_test(unknown_letter 2 error "unknown option: -q\n" ${made}/short.xml -qx)
add_report_test(unknown_format 2 error "--to does not know 'text'" --to text ${made}/short.xml)
add_report_test(unknown_line_end 2 error "--eol does not know 'cr'" --eol=cr ${made}/short.xml)
add_report_test(missing_value 2 error "needs a value: --compress" ${made}/short.xml --compress)
add_report_test(help 0 output "^Usage: .*--from auto.xml .*--keep-cdata.*Exit status" --help)
add_report_test(version 0 output "^zrconvert ${PROJECT_VERSION}\n$" --version)
