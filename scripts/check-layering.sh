#!/usr/bin/env bash
# The portable layers include no system headers: only their platform files may include
# <windows.h>, OpenSSL or POSIX headers. Prints offenders and fails when there are any.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
pattern='#[[:space:]]*include[[:space:]]*[<"](windows\.h|winhttp\.h|bcrypt\.h|wincrypt\.h|rpc\.h|openssl/|unistd\.h|sys/|fcntl\.h|termios\.h|dirent\.h|pthread\.h)'
offenders=$(git ls-files 'core/*' 'crypto/*' 'model/*' 'app/*' 'converter/*' 'cloud/*' 'cli/*' |
  grep -E '\.(h|hpp|cpp|cc)$' |
  grep -vE '(^|/)platform/|^crypto/aes_(bcrypt|openssl)\.cpp$|_(windows|posix)\.cpp$' |
  xargs -r grep -lE "$pattern" 2>/dev/null)
if [ -n "$offenders" ]; then
  echo "system headers outside the platform files:"
  echo "$offenders" | sed 's/^/  /'
  exit 1
fi
echo "layering: portable layers include no system headers"
