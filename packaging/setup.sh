# Sourced by `run` and `test`, from any folder: how both run a step and install packages.
# shellcheck shell=bash

packaging=$(dirname "${BASH_SOURCE[0]}")

# Shows that a step is alive until it is killed: its seconds and the last line of its log, each second in one line on a
# terminal, elsewhere every five seconds in a line of its own.
show_progress() { # LOG
  local start=$SECONDS line width
  while sleep 1; do
    line=$(tail -n 20 "$1" | grep -vE '^ *(---|\.\.\.|[a-z_]+: .*)?$' | tail -n 1 | tr -d '\r') || true # not what TAP adds
    line="   $((SECONDS - start)) s  ${line//[^[:print:]]/ }"
    if [[ -t 2 ]]; then
      width=$(tput cols 2>/dev/null || echo 80)
      printf '\r\e[K%s' "${line:0:width-1}" >&2
    elif (((SECONDS - start) % 5 == 0)); then
      echo "${line:0:120}" >&2
    fi
  done
}

# logged LOG COMMAND...: runs the command with its output in the log, whose end is shown if it fails.
logged() {
  local log=$1 status=0 progress
  shift
  mkdir -p "$(dirname "$log")"
  : >"$log"
  show_progress "$log" &
  progress=$!
  "$@" >"$log" 2>&1 || status=$?
  kill "$progress"
  wait "$progress" 2>/dev/null || true
  [[ -t 2 ]] && printf '\r\e[K' >&2
  if ((status)); then
    tail -n 60 "$log" >&2
    echo "(all of it: $log)" >&2
  fi
  return "$status"
}

# has_version COMMAND LOWEST: whether the command exists in that major version or a later one.
has_version() {
  local version
  command -v "$1" >/dev/null || return 1
  (($2 == 0)) && return # npm is slow to print its version
  version=$("$1" --version)
  version=${version#v}
  ((${version%%.*} >= $2))
}

# missing_packages LIST...: the packages of these lists that are not installed, a line each.
missing_packages() {
  local installed package command lowest
  installed=$(dpkg-query --show --showformat '${db:Status-Status} ${Package}\n')
  while read -r package command lowest; do
    [[ $'\n'$installed$'\n' == *$'\n'"installed $package"$'\n'* ]] && continue
    [[ -n $command ]] && has_version "$command" "$lowest" && continue
    echo "$package"
  done < <(cd "$packaging/packages" && sed -e 's/#.*//' -e '/^ *$/d' "${@/%/.txt}")
}

# install_packages LIST...: installs what is missing of packaging/packages; quick if nothing is.
install_packages() {
  local missing as_root=()
  if ! command -v apt-get >/dev/null; then
    echo "Not a Debian system: the packages of packaging/packages are assumed to be installed."
    return
  fi
  mapfile -t missing < <(missing_packages "$@")
  ((${#missing[@]})) || return 0

  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "Packages are missing that only root can install: apt-get install ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing ${missing[*]}"
  as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3)
  if ! "${as_root[@]}" update || ! "${as_root[@]}" install --no-install-recommends "${missing[@]}"; then
    echo "These packages could not be installed: ${missing[*]}" >&2
    return 1
  fi
}
