# Stops the configuration when a package the developers' build needs is
# missing, naming the Debian packages that provide it and the option that
# leaves that part out.
function(ze_require_package package title debian_packages option)
  find_package(${package} ${ARGN})
  if(NOT ${package}_FOUND)
    message(FATAL_ERROR "${title} was not found. Install Debian's ${debian_packages} "
      "(scripts/install-deps does), or configure with -D${option}=OFF.")
  endif()
endfunction()
