// The file opener, as the host's companion library declares it.
#pragma once

#include <fstream>

#include "platform/ZEBVisible.h"

enum ZEBOpenMode : int { kZEBOpenRead = 1 };

/// Opens parameter files. A file that cannot be opened leaves the stream in a failed state.
class ZEB_VISIBLE CZEBFileIO {
 public:
  /// Opens `fileName` in text mode: a CR LF pair in the file is delivered as LF, a lone CR stays. The meaning of the
  /// two integers is the platform's own; this library always passes 500 and 10.
  void ZEBOpenFile(std::ifstream& stream, const char* fileName, ZEBOpenMode mode, int, int);
};
