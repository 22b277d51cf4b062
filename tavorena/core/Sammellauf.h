#pragma once

namespace tavorena {

/// Work on many blocks while nobody types: as long as this lives, nothing that is appended is waited for
/// until it is on the disk. AnhängeSichern is for afterwards.
class Sammellauf {
 public:
  Sammellauf();
  ~Sammellauf();
  Sammellauf(const Sammellauf&) = delete;
  Sammellauf& operator=(const Sammellauf&) = delete;
};

}  // namespace tavorena
