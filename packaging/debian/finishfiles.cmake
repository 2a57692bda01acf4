# Run by CPack on the files of all packages: what a Debian package wants otherwise than an installation that may
# be moved. Programs find the libraries in the system's folders, and manual pages are compressed.
file(GLOB_RECURSE staged LIST_DIRECTORIES FALSE "${CPACK_TEMPORARY_DIRECTORY}/*")
foreach(file IN LISTS staged)
  if(file MATCHES "/bin/[^/]*$|/lib[^/]*\\.so\\.[0-9.]*$|/plugins/[^/]*\\.so$" AND NOT IS_SYMLINK "${file}")
    file(RPATH_REMOVE FILE "${file}")
  elseif(file MATCHES "/man/man[1-8]/[^/]*\\.[1-8]$")
    execute_process(COMMAND gzip -9n "${file}" COMMAND_ERROR_IS_FATAL ANY)
  endif()
endforeach()
