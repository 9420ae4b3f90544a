// An owned file descriptor (a file, a lock, a socket), closed exactly once.
//
//   UniqueFd fd(::open(path, O_RDONLY | O_CLOEXEC));
//   if (!fd) return false;
//   ::read(fd.get(), buffer, size);  // closed when fd goes
#pragma once

#include <unistd.h>

#include "core/unique_any.h"

namespace qvx::platform {

using UniqueFd = UniqueAny<int, CloseWith<&::close>, -1>;

}  // namespace qvx::platform
