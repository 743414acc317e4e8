#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Installs what the project needs from Debian's packages, as far as it is missing. `./run`, `./test` and
# `./check` call it first; the list stands here alone.
set -euo pipefail

packages=(
  # compiler and build
  g++ cmake ninja-build ccache git
  # the libraries of floors 4 and 5; the fonts are the ones the windows are measured for
  libsqlite3-dev qt6-base-dev fonts-liberation libcli11-dev nlohmann-json3-dev
  # tests and benchmarks
  libgtest-dev libgmock-dev libbenchmark-dev python3 pkg-config dpkg-dev
  # database servers over ODBC: what the provider is built with, and the drivers
  unixodbc-dev odbc-postgresql odbc-mariadb tdsodbc
  # the servers that the tests start for themselves, with ports and data of their own: tests/servers.py
  postgresql mariadb-server galera-4
  # ./check
  clang-format clang-tidy doxygen
)

missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

if [ "$(id -u)" -ne 0 ]; then
  echo "These packages are missing; install them as root: apt-get install ${missing[*]}" >&2
  exit 1
fi
echo "Installing: ${missing[*]}" >&2
export DEBIAN_FRONTEND=noninteractive
# The servers' packages would start their own servers, which nobody here needs.
policy=/usr/sbin/policy-rc.d
if [ ! -e "$policy" ]; then
  trap 'rm -f "$policy"' EXIT
  printf '#!/bin/sh\nexit 101\n' >"$policy"
  chmod 755 "$policy"
fi
apt-get update -qq >&2
apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
