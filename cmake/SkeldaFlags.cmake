# Every target of the project links skelda_flags: warnings, sanitizers and the
# fuzzer's coverage instrumentation travel with the targets, not with the directory.
add_library(skelda_flags INTERFACE)
target_compile_features(skelda_flags INTERFACE cxx_std_17)
target_compile_options(skelda_flags INTERFACE -Wall -Wextra)
if(SKELDA_WERROR)
  target_compile_options(skelda_flags INTERFACE -Werror)
endif()

if(SKELDA_SANITIZE STREQUAL "address")
  set(_san -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
elseif(SKELDA_SANITIZE STREQUAL "thread")
  set(_san -fsanitize=thread -fno-omit-frame-pointer)
elseif(NOT SKELDA_SANITIZE STREQUAL "")
  message(FATAL_ERROR "SKELDA_SANITIZE must be empty, 'address' or 'thread'")
endif()
if(_san)
  target_compile_options(skelda_flags INTERFACE ${_san})
  target_link_options(skelda_flags INTERFACE ${_san})
  # GCC 12's sanitizer instrumentation makes -Wmaybe-uninitialized fire inside libstdc++
  # (<regex>, std::function) where nothing is uninitialized; the plain build keeps it.
  target_compile_options(skelda_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()

if(SKELDA_FUZZ)
  # Apple's clang (compiler id AppleClang) ships without the libFuzzer runtime, so the link
  # would fail later with a less telling message; LLVM's own clang has it.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "AppleClang")
    message(FATAL_ERROR "SKELDA_FUZZ needs LLVM's clang, which has libFuzzer; Apple's has not: "
      "configure with CC=$(brew --prefix llvm)/bin/clang CXX=$(brew --prefix llvm)/bin/clang++")
  elseif(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "SKELDA_FUZZ needs clang: configure with CC=clang CXX=clang++")
  endif()
  target_compile_options(skelda_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
