# Sourced by `run` and `test`, from any folder: what both do ahead of their own work.
# shellcheck shell=bash

packaging=$(dirname "${BASH_SOURCE[0]}")

# logged LOG COMMAND...: runs the command with its output in the log, whose end is shown if it fails.
logged() {
  local log=$1 status=0
  shift
  mkdir -p "$(dirname "$log")"
  "$@" >"$log" 2>&1 || status=$?
  if ((status)); then
    tail -n 60 "$log" >&2
    echo "(all of it: $log)" >&2
  fi
  return "$status"
}

# has_version COMMAND LOWEST: whether the command is there in that major version or a later one.
has_version() {
  local version
  command -v "$1" >/dev/null || return 1
  (($2 == 0)) && return # npm is slow to tell its version
  version=$("$1" --version)
  version=${version#v}
  ((${version%%.*} >= $2))
}

# The packages of the list that are not there, a line each.
missing_packages() {
  local installed package command lowest
  installed=$(dpkg-query --show --showformat '${db:Status-Status} ${Package}\n')
  while read -r package command lowest; do
    [[ $'\n'$installed$'\n' == *$'\n'"installed $package"$'\n'* ]] && continue
    [[ -n $command ]] && has_version "$command" "$lowest" && continue
    echo "$package"
  done < <(sed -e 's/#.*//' -e '/^ *$/d' "$packaging/debian-packages.txt")
}

# Installs what is missing; does nothing, and quickly, where all is there.
install_packages() {
  local missing as_root=()
  if ! command -v apt-get >/dev/null; then
    echo "No Debian system: what packaging/debian-packages.txt lists is taken to be there."
    return
  fi
  mapfile -t missing < <(missing_packages)
  ((${#missing[@]})) || return 0

  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "Packages are missing that root alone can install: apt-get install ${missing[*]}" >&2
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
