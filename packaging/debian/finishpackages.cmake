# Run by CPack on the packages: scripts of its own call ldconfig, for which Debian has a trigger.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  if(package MATCHES "/libmrvbase1_[^/]*\\.deb$")
    set(folder "${package}.unpacked")
    execute_process(COMMAND dpkg-deb -R "${package}" "${folder}" COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE "${folder}/DEBIAN/postinst" "${folder}/DEBIAN/postrm")
    file(WRITE "${folder}/DEBIAN/triggers" "activate-noawait ldconfig\n")
    execute_process(COMMAND dpkg-deb --root-owner-group -Zxz -b "${folder}" "${package}" COMMAND_ERROR_IS_FATAL ANY
                                                                                         OUTPUT_QUIET)
    file(REMOVE_RECURSE "${folder}")
  endif()
endforeach()
