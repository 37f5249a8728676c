# Sourced by scripts that need an X display for Wine's windows.
#   start_xvfb   sets DISPLAY to a fresh Xvfb (1024x768x24) and remembers it
#   stop_xvfb    ends it
start_xvfb() {
  local n=77
  while [ -e "/tmp/.X$n-lock" ]; do n=$((n + 1)); done
  Xvfb ":$n" -screen 0 1024x768x24 -nolisten tcp >/dev/null 2>&1 &
  TL99_XVFB_PID=$!
  export DISPLAY=":$n"
  for _ in $(seq 50); do
    [ -e "/tmp/.X11-unix/X$n" ] && return 0
    sleep 0.1
  done
  echo "xvfb: display :$n did not come up" >&2
  return 1
}

stop_xvfb() {
  [ -n "${TL99_XVFB_PID:-}" ] && kill "$TL99_XVFB_PID" 2>/dev/null
  TL99_XVFB_PID=
}
