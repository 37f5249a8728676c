# Sourced by the scripts that run Wine. Wine keeps a file's read-only
# attribute in its Unix permissions, which root ignores; so under root every
# Wine command runs as the ordinary user "tl99", for whom a read-only file is
# read-only as it is on Windows 98. Everyone else runs Wine as themselves.
#
#   wine_user_setup PREFIX      make the user and hand it the prefix folder
#   as_wine_user CMD ARGS...    run CMD with the prefix's environment

TL99_WINE_USER=tl99

wine_user_setup() {
  local prefix=$1
  mkdir -p "$prefix"
  if [ "$(id -u)" -eq 0 ]; then
    id "$TL99_WINE_USER" >/dev/null 2>&1 || useradd -m -s /bin/bash "$TL99_WINE_USER"
    if [ "$(stat -c %U "$prefix")" != "$TL99_WINE_USER" ]; then
      chown -R "$TL99_WINE_USER" "$prefix"
    fi
  fi
}

as_wine_user() {
  local vars=(WINEPREFIX="$WINEPREFIX" WINEARCH=win32 WINEDEBUG=-all
    WINEDLLOVERRIDES="mscoree,mshtml=" DISPLAY="${DISPLAY:-}")
  if [ "$(id -u)" -eq 0 ]; then
    runuser -u "$TL99_WINE_USER" -- env HOME="/home/$TL99_WINE_USER" "${vars[@]}" "$@"
  else
    env "${vars[@]}" "$@"
  fi
}
