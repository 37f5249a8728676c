#!/usr/bin/env bash
# Rebuilds, for the 486, the runtime that "Tweakloom 99.exe" links statically,
# from Debian's own sources of the versions installed, configured as Debian
# configures its win32-thread i686 MinGW-w64 compiler with only the processor
# changed (-march=i486 where Debian's default is the Pentium Pro):
#
#   the MinGW-w64 CRT     crt2.o and the libraries the product links
#                         (mingw-w64 source package, apt-get source)
#   libgcc, libgcc_eh     crtbegin.o, crtend.o      (gcc-12-source package)
#   libstdc++, libsupc++                            (gcc-12-source package)
#
# Debian's own cross compiler compiles them: GCC's target libraries are built
# from GCC's top-level makefile with Debian's configure line (as printed by
# `i686-w64-mingw32-gcc-win32 -v`) plus --with-arch=i486, and the compiler
# that make would have built first is the installed one of the same version.
#
# Output: build/runtime-i486/lib, which cmake/mingw-i686-win32.cmake puts
# before Debian's libraries (-B and -L). build/runtime-i486/stamp records the
# inputs (source and compiler versions, flags, this script); a second run with
# the same inputs does nothing. --force rebuilds anyway.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
. tools/apt-lists.sh

out=$root/build/runtime-i486
lib=$out/lib
work=$out/work
logs=$out/logs
target=i686-w64-mingw32
cc=$target-gcc-win32
arch=i486
jobs=${TL99_RUNTIME_JOBS:-2}

# The CRT's libraries that hold code or data the product takes (the rest of
# its libraries are import libraries: thunks only, the same on any processor).
crt_parts=(crt2.o libmingw32.a libmingwex.a libmsvcrt.a libmoldname.a libkernel32.a
  libuser32.a libgdi32.a libadvapi32.a libshell32.a libcomctl32.a libcomdlg32.a
  libole32.a liboleaut32.a libuuid.a libwinspool.a)
gcc_parts=(crtbegin.o crtend.o libgcc.a libgcc_eh.a libstdc++.a libsupc++.a)
# Debian's patches of gcc-12-source applied (see below)
gcc_patches=(cuda-float128)

# --arch ARCH builds the same for another processor into build/runtime-ARCH:
# with pentiumpro, Debian's own default, the result can be compared with
# Debian's prebuilt libraries (tools/compare-runtime.sh).
force=no
while [ $# -gt 0 ]; do
  case $1 in
    --force) force=yes ;;
    --arch)
      arch=$2
      out=$root/build/runtime-$arch
      lib=$out/lib
      work=$out/work
      logs=$out/logs
      shift
      ;;
    *)
      echo "usage: tools/build-runtime-i486.sh [--force] [--arch ARCH]" >&2
      exit 2
      ;;
  esac
  shift
done

# ---- inputs -----------------------------------------------------------------
version_of() { dpkg-query -W -f="\${$2}" "$1" 2>/dev/null; }
gcc_source_version=$(version_of gcc-12-source Version)
compiler_version=$(version_of gcc-mingw-w64-i686-win32 Version)
crt_source_version=$(version_of mingw-w64-i686-dev source:Version)
if [ -z "$gcc_source_version" ] || [ -z "$compiler_version" ] || [ -z "$crt_source_version" ]; then
  echo "runtime-i486: gcc-12-source, gcc-mingw-w64-i686-win32 and mingw-w64-i686-dev are needed (tools/install-deps.sh)" >&2
  exit 1
fi
# Debian versions the MinGW-w64 compiler as <gcc-12-source version>+<its own>.
case $compiler_version in
  "$gcc_source_version"+*) ;;
  *)
    echo "runtime-i486: the compiler ($compiler_version) is not built from gcc-12-source $gcc_source_version" >&2
    exit 1
    ;;
esac
configured=$($cc -v 2>&1 | sed -n 's/^Configured with: //p')
configured=${configured#../../src/configure }
case " $configured " in
  *" --enable-threads=win32 "*" --disable-sjlj-exceptions --with-dwarf2 "*) ;;
  *)
    echo "runtime-i486: $cc is not the win32-thread, Dwarf-2 compiler this script knows: $configured" >&2
    exit 1
    ;;
esac
# The compiler make would build applies its configured tuning (--with-tune)
# when no -mtune is given; the installed one applies it only when no -march
# is given either. So both go on the command line.
tune=$(echo " $configured " | sed -n 's/.* --with-tune=\([^ ]*\) .*/\1/p')
tune=${tune:-generic}
cpu_flags="-march=$arch -mtune=$tune"

# Debian's flags for target code: dpkg-buildflags with hardening off (both
# packages), -Wall (gcc-mingw-w64). -g is left out: it changes no instruction,
# and the product is stripped.
deb_flags=$(DEB_BUILD_MAINT_OPTIONS='hardening=-all optimize=-lto' dpkg-buildflags --get CFLAGS |
  sed -e 's/\(^\| \)-g\( \|$\)/ /' -e 's/-ffile-prefix-map=[^ ]*//' -e 's/  */ /g' -e 's/^ //;s/ $//')
crt_cppflags="$(DEB_BUILD_MAINT_OPTIONS='hardening=-all optimize=-lto' dpkg-buildflags --get CPPFLAGS) -Wno-expansion-to-defined"

stamp_text=$(
  echo "gcc-12-source $gcc_source_version"
  echo "compiler $compiler_version"
  echo "mingw-w64 $crt_source_version"
  echo "configure $configured --with-arch=$arch"
  echo "flags $cpu_flags $deb_flags"
  echo "crt-cppflags $crt_cppflags"
  echo "parts ${crt_parts[*]} ${gcc_parts[*]}"
  echo "gcc-patches ${gcc_patches[*]}"
  sha256sum tools/build-runtime-i486.sh tools/apt-lists.sh | cut -d' ' -f1
)
complete() {
  local f
  for f in "${crt_parts[@]}" "${gcc_parts[@]}"; do [ -s "$lib/$f" ] || return 1; done
}
if [ $force = no ] && [ -f "$out/stamp" ] && [ "$(cat "$out/stamp")" = "$stamp_text" ] && complete; then
  echo "runtime-i486: up to date ($lib)"
  exit 0
fi

echo "runtime-i486: rebuilding the runtime for the $arch in $out (logs in $logs)"
started=$(date +%s)
rm -rf "$work" "$lib" "$out/stamp"
mkdir -p "$work" "$lib" "$logs"
step() { # NAME LOG FUNCTION: runs FUNCTION (its own shell, stopping at the
  # first failure) with its output in LOG, and times it
  local name=$1 log=$2 t0 rc
  shift 2
  t0=$(date +%s)
  set +e
  (
    set -e
    "$@"
  ) >"$logs/$log" 2>&1
  rc=$?
  set -e
  if [ $rc -ne 0 ]; then
    echo "runtime-i486: $name failed; the end of $logs/$log:" >&2
    tail -n 30 "$logs/$log" >&2
    exit 1
  fi
  echo "runtime-i486: $name ($(($(date +%s) - t0)) s)"
}

# ---- the MinGW-w64 CRT ------------------------------------------------------
# apt-get source unpacks Debian's source package with its patches applied.
# Debian's rules then delete the generated autotools files and regenerate
# them (autoreconf), and configure the CRT for i686 alone (--enable-lib32
# --disable-lib64) against the installed headers of the same version.
fetch_crt() {
  tl99_apt_src_ready
  cd "$work"
  tl99_apt_src source -qq "mingw-w64=$crt_source_version"
  cd "$work"/mingw-w64-*/mingw-w64-crt
  local n
  for n in aclocal.m4 'build-aux/*' config.h.in configure Makefile.in; do
    find . -wholename "*/$n" -type f -delete
  done
  for n in libtool ltoptions ltsugar ltversion 'lt~obsolete'; do
    find . -wholename "*/$n.m4" -type f -delete
  done
  autoreconf -fi
}
build_crt() {
  local src
  src=$(echo "$work"/mingw-w64-*/mingw-w64-crt)
  mkdir -p "$work/crt/lib32"
  cd "$work/crt"
  CC="$cc $cpu_flags" CFLAGS="$deb_flags" CPPFLAGS="$crt_cppflags" \
    "$src/configure" --host=$target --target=$target --prefix=/usr/$target \
    --disable-lib64 --enable-lib32
  nice -n 10 make -j"$jobs" "${crt_parts[@]/#/lib32/}"
}
step "MinGW-w64 $crt_source_version sources" fetch-crt.log fetch_crt
step "MinGW-w64 CRT" crt.log build_crt

# ---- libgcc and libstdc++ ---------------------------------------------------
# The tarball of gcc-12-source, less the parts that no C or C++ target
# library needs (the test suites, other languages' front ends and libraries,
# the LTO plugin, which make would otherwise build for the host). Of Debian's
# patches of gcc-12-source, the one applied here is the only one that touches
# what these libraries are built from for this target (libstdc++'s headers,
# as Debian installs them); the others change the compiler, its driver, and
# other systems' or languages' files.
gcc_src=$work/gcc-src
fetch_gcc() {
  local tarball
  tarball=$(echo /usr/src/gcc-12/gcc-*-dfsg.tar.*)
  mkdir -p "$gcc_src"
  tar -xf "$tarball" -C "$gcc_src" --strip-components=1 \
    --exclude='*/testsuite' --exclude='*/gcc/ada' --exclude='*/gcc/d' --exclude='*/gcc/go' \
    --exclude='*/gcc/fortran' --exclude='*/gcc/m2' --exclude='*/gcc/rust' --exclude='*/gcc/doc' \
    --exclude='*/libstdc++-v3/doc' --exclude='*/libgo' --exclude='*/libphobos' --exclude='*/libada' \
    --exclude='*/gnattools' --exclude='*/libgfortran' --exclude='*/libobjc' \
    --exclude='*/libsanitizer' --exclude='*/lto-plugin' --exclude='*/libffi'
  # configure writes these files of the excluded folders
  tar -xf "$tarball" -C "$gcc_src" --strip-components=1 --wildcards \
    '*/libiberty/testsuite/Makefile.in' '*/libgomp/testsuite/*.in' \
    '*/libstdc++-v3/testsuite/Makefile.in' '*/libstdc++-v3/doc/Makefile.in' \
    '*/libstdc++-v3/doc/xsl/*.in' '*/libstdc++-v3/doc/doxygen/*.in' \
    --exclude='*/testsuite/*/*'
  local p
  for p in "${gcc_patches[@]}"; do
    patch -d "$gcc_src" -p2 --no-backup-if-mismatch <"/usr/src/gcc-12/patches/$p.diff"
  done
  # Debian's BASE-VER for this compiler: "12-win32"
  echo "$($cc -dumpversion)" >"$gcc_src/gcc/BASE-VER"
}
step "GCC $gcc_source_version sources" fetch-gcc.log fetch_gcc

# What make would take from the compiler it builds first, taken from the
# installed one: the same GCC, with -march=i486 as --with-arch=i486 would
# make its default. libstdc++ is compiled as GCC compiles it (the C driver,
# -nostdinc++, the headers of its own build).
gcc_obj=$work/gcc-obj
target_make=(
  "CC_FOR_TARGET=$cc $cpu_flags"
  "GCC_FOR_TARGET=$cc $cpu_flags"
  "CXX_FOR_TARGET=$target-g++-win32 $cpu_flags"
  "RAW_CXX_FOR_TARGET=$cc $cpu_flags -shared-libgcc -nostdinc++ -L\$\$r/$target/libstdc++-v3/src -L\$\$r/$target/libstdc++-v3/src/.libs -L\$\$r/$target/libstdc++-v3/libsupc++/.libs"
  "CFLAGS_FOR_TARGET=$deb_flags -Wall"
  "CXXFLAGS_FOR_TARGET=$deb_flags -Wall"
)
configure_gcc() {
  # Debian's line, for C and C++ (no other front end's library is built),
  # without precompiled headers (not part of a library), for the i486.
  local line
  line=$(echo "$configured" | sed -e 's/--enable-languages=[^ ]*/--enable-languages=c,c++/')
  mkdir -p "$gcc_obj"
  cd "$gcc_obj"
  eval "nice -n 10 \"$gcc_src/configure\" $line --with-arch=$arch --disable-libstdcxx-pch"
  nice -n 10 make configure-gcc
  # The generated headers and the variables libgcc's makefile reads from the
  # compiler's build folder; the compiler itself is not built (-o).
  nice -n 10 make -j"$jobs" all-build-libiberty
  # Debian's compiler finds its C library's headers, so its libgcc is built
  # with them (gcc's configure guesses otherwise for a cross compiler whose
  # headers live outside its sys-include folder).
  # Neither the compiler (xgcc) nor the driver's configuration file, which
  # libgcc.mvars depends on, is made: make takes both as up to date.
  local driver_config
  driver_config=$(printf 'sp%ss' ec)
  nice -n 10 make -C gcc -j"$jobs" -o xgcc -o "$driver_config" inhibit_libc=false \
    libgcc.mvars tconfig.h tm.h options.h insn-modes.h insn-constants.h version.h
  mkdir -p gcc/include
}
build_libgcc() {
  cd "$gcc_obj"
  nice -n 10 make -j"$jobs" -o all-gcc "${target_make[@]}" all-target-libgcc
}
build_libstdcxx() {
  cd "$gcc_obj"
  # libstdc++ takes its parallel mode from libgomp's configured omp.h
  nice -n 10 make -j"$jobs" -o all-gcc "${target_make[@]}" configure-target-libgomp
  nice -n 10 make -j"$jobs" -o all-gcc -o all-target-libgcc "${target_make[@]}" \
    all-target-libstdc++-v3
}
step "GCC configured as Debian's compiler" gcc-configure.log configure_gcc
step "libgcc" libgcc.log build_libgcc
step "libstdc++" libstdcxx.log build_libstdcxx

# ---- install ----------------------------------------------------------------
for f in "${crt_parts[@]}"; do cp "$work/crt/lib32/$f" "$lib/"; done
cp "$gcc_obj/$target"/libgcc/{crtbegin.o,crtend.o,libgcc.a,libgcc_eh.a} "$lib/"
cp "$gcc_obj/$target"/libstdc++-v3/src/.libs/libstdc++.a "$lib/"
cp "$gcc_obj/$target"/libstdc++-v3/libsupc++/.libs/libsupc++.a "$lib/"
# libstdc++'s configured headers, to compare with the installed ones
mkdir -p "$out/include"
cp "$gcc_obj/$target"/libstdc++-v3/include/$target/bits/c++config.h "$out/include/"
echo "$stamp_text" >"$out/stamp"
rm -rf "$work"
echo "runtime-i486: done in $((($(date +%s) - started) / 60)) min $((($(date +%s) - started) % 60)) s"
