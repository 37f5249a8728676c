# Sourced by the scripts that ask apt for packages or sources.
#
# The security suite's i386 index is sometimes out of step with amd64; so
# packages of both architectures come from main and updates only, through a
# sources list and a lists folder of our own. Debian's source packages (the
# runtime rebuilt for the i486) come through a second pair of the same kind,
# so that refreshing one never drops the other's indexes.
#
#   tl99_apt ARGS...          apt-get with the packages list (written on first use)
#   tl99_apt_src ARGS...      apt-get with the sources list (written on first use)
#   tl99_apt_src_ready        fetch the source indexes unless they are there

tl99_apt_list=/etc/apt/tl99-sources.list
tl99_apt_lists=/var/lib/apt/lists-tl99
tl99_apt_src_list=/etc/apt/tl99-deb-src.list
tl99_apt_src_lists=/var/lib/apt/lists-tl99-src

# The machine's own Debian mirror, without its security suite.
tl99_apt_mirror() {
  local mirror
  mirror=$(grep -hE '^(URIs:|deb )' /etc/apt/sources.list /etc/apt/sources.list.d/*.sources \
    /etc/apt/sources.list.d/*.list 2>/dev/null | grep -oE 'https?://[^ ]+' | grep -v security |
    head -n 1 || true)
  mirror=${mirror:-http://deb.debian.org/debian}
  # debian.sources (deb822) may hold a URI with a trailing slash
  echo "${mirror%/}"
}

# tl99_apt_write LIST LISTS KIND: one line per suite, "deb" or "deb-src".
tl99_apt_write() {
  local mirror
  mirror=$(tl99_apt_mirror)
  mkdir -p "$2/partial"
  printf '%s %s bookworm main\n%s %s bookworm-updates main\n' "$3" "$mirror" "$3" "$mirror" >"$1"
}

tl99_apt() {
  [ -f "$tl99_apt_list" ] || tl99_apt_write "$tl99_apt_list" "$tl99_apt_lists" deb
  apt-get -o Dir::Etc::SourceList="$tl99_apt_list" -o Dir::Etc::SourceParts=/nonexistent \
    -o Dir::State::Lists="$tl99_apt_lists" "$@"
}

tl99_apt_src() {
  [ -f "$tl99_apt_src_list" ] || tl99_apt_write "$tl99_apt_src_list" "$tl99_apt_src_lists" deb-src
  apt-get -o Dir::Etc::SourceList="$tl99_apt_src_list" -o Dir::Etc::SourceParts=/nonexistent \
    -o Dir::State::Lists="$tl99_apt_src_lists" "$@"
}

tl99_apt_src_ready() {
  if ! compgen -G "$tl99_apt_src_lists/*_Sources*" >/dev/null; then
    tl99_apt_src update -qq
  fi
}
