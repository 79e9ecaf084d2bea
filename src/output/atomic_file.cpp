#include "output/atomic_file.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "runtime/failure.h"

namespace orvane {
namespace {

struct Reason {
  int Error;
  const char* Clause;
};
constexpr Reason kReasons[] = {
    {ENOENT, "there is no such folder"},        {ENOTDIR, "there is no such folder"},
    {EACCES, "you are not allowed to"},         {EPERM, "you are not allowed to"},
    {EROFS, "nothing can be written there"},    {ENOSPC, "the disk is full"},
    {EDQUOT, "your share of the disk is full"}, {EFBIG, "the file is too large"},
    {EISDIR, "a folder has that name"},         {ENAMETOOLONG, "the name is too long"},
};

[[noreturn]] void Fail(const char* what, const std::string& path, int error) {
  std::string clause = "error " + std::to_string(error);
  for (const Reason& reason : kReasons) {
    if (reason.Error == error) clause = reason.Clause;
  }
  FailPlatform(path + " " + what + ": " + clause);
}

std::string PathOf(const std::string& folder, const std::string& name) {
  if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos ||
      name.find('\0') != std::string::npos) {
    FailPlatform("\"" + name + "\" is not a file name: a picture goes to one folder only");
  }
  return folder + "/" + name;
}

// An open file, which is closed at the end even when there is no memory for what it holds.
struct OpenFile {
  const int Number;  // below 0: it could not be opened

  explicit OpenFile(int number) : Number(number) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (Number >= 0) close(Number);
  }
};

// Open until the object ends, and then deleted unless it was renamed.
class FileAside {
 public:
  // The system puts letters of its own in place of the six X.
  explicit FileAside(const std::string& path) : path_(path + "." + std::string(6, 'X')) {
    file_ = mkostemp(path_.data(), O_CLOEXEC);
  }
  FileAside(const FileAside&) = delete;
  FileAside& operator=(const FileAside&) = delete;
  ~FileAside() {
    if (file_ < 0) return;
    close(file_);
    if (!renamed_) unlink(path_.c_str());
  }

  bool IsOpen() const { return file_ >= 0; }

  // Waits until the bytes are on the disk: a full disk may report it only at the end.
  bool Write(const FileBytes& bytes) {
    for (std::size_t done = 0; done < bytes.size();) {
      const ssize_t count = write(file_, bytes.data() + done, bytes.size() - done);
      if (count < 0 && errno != EINTR) return false;
      if (count > 0) done += static_cast<std::size_t>(count);
    }
    return fsync(file_) == 0;
  }

  // With the permissions that the user's other files get.
  bool Rename(const std::string& path) {
    const mode_t mask = umask(0);
    umask(mask);
    renamed_ = fchmod(file_, 0666 & ~mask) == 0 && rename(path_.c_str(), path.c_str()) == 0;
    return renamed_;
  }

 private:
  std::string path_;
  int file_ = -1;
  bool renamed_ = false;
};

}  // namespace

void WriteAside(const std::string& folder, const std::string& name, const FileBytes& bytes) {
  const std::string path = PathOf(folder, name);
  int error = 0;
  {
    FileAside aside(path);
    if (!aside.IsOpen() || !aside.Write(bytes) || !aside.Rename(path)) error = errno;
  }
  if (error != 0) Fail("could not be written", path, error);
}

std::optional<FileBytes> ReadWhole(const std::string& folder, const std::string& name) {
  const std::string path = PathOf(folder, name);
  const OpenFile file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.Number < 0 && errno == ENOENT) return std::nullopt;
  FileBytes bytes;
  int error = file.Number < 0 ? errno : 0;
  for (bool more = error == 0; more;) {
    unsigned char block[65536];
    const ssize_t count = read(file.Number, block, sizeof block);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) error = errno;
    if (count > 0) bytes.insert(bytes.end(), block, block + count);
    more = count > 0;
  }
  if (error != 0) Fail("could not be read", path, error);
  return bytes;
}

}  // namespace orvane
