# The product build: MinGW-w64 for i686 with the win32 thread model, whose
# runtime imports nothing that Windows 98 lacks.
#
# Everything runs on a 486: our code is compiled for it (Debian's compiler
# defaults to the Pentium Pro, whose CMOV and FCOMI a Pentium MMX or a K6-2
# lacks), and it links the runtime rebuilt for it by
# tools/build-runtime-i486.sh (CRT, libgcc, libstdc++), found before Debian's
# own: -B for the start-up objects, -L for the libraries.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_COMPILER i686-w64-mingw32-gcc-win32)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-win32)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/i686-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(TL99_THREAD_MODEL win32)

# CMakeLists.txt applies both to every target of this configuration.
set(TL99_CPU_FLAGS -march=i486 -mtune=pentium)
get_filename_component(TL99_RUNTIME_I486 "${CMAKE_CURRENT_LIST_DIR}/../build/runtime-i486/lib"
                       ABSOLUTE)
if(NOT EXISTS "${TL99_RUNTIME_I486}/libstdc++.a")
  message(FATAL_ERROR "The runtime for the i486 is not built: run tools/build-runtime-i486.sh")
endif()
