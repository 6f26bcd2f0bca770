#include "core/safe_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <new>
#include <vector>

namespace vn {

namespace {

std::string ErrorText(int err) { return std::strerror(err != 0 ? err : EIO); }

// A write past the file size limit raises SIGXFSZ, whose default is to end the process. Ignored,
// the write fails with EFBIG instead and the caller keeps the previous file and says why. A handler
// that someone installed on purpose is left alone.
void IgnoreFileSizeSignal() {
  static const bool done = [] {
    struct sigaction old {};
    if (sigaction(SIGXFSZ, nullptr, &old) == 0 && old.sa_handler == SIG_DFL) std::signal(SIGXFSZ, SIG_IGN);
    return true;
  }();
  (void)done;
}

// The permission bits a new file gets from open(..., 0666): the process's umask, read without
// changing it (umask() can only be read by setting it).
mode_t NewFileMode() {
  mode_t mask = 022;
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line))
    if (line.rfind("Umask:", 0) == 0) {
      mask = static_cast<mode_t>(std::strtoul(line.c_str() + 6, nullptr, 8));
      break;
    }
  return 0666 & ~mask;
}

std::string FolderOf(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  if (slash == 0) return "/";
  return path.substr(0, slash);
}

std::string NameOf(const std::string& path) {
  const auto slash = path.rfind('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool WriteAll(int fd, std::string_view bytes, int* err) {
  const char* p = bytes.data();
  size_t left = bytes.size();
  while (left > 0) {
    const ssize_t n = ::write(fd, p, left);
    if (n < 0) {
      if (errno == EINTR) continue;
      *err = errno;
      return false;
    }
    if (n == 0) {
      *err = ENOSPC;
      return false;
    }
    p += n;
    left -= static_cast<size_t>(n);
  }
  return true;
}

}  // namespace

bool ReplaceFileWith(const std::string& path, const FillFile& fill, std::string* reason) {
  std::string ignored;
  if (!reason) reason = &ignored;
  IgnoreFileSizeSignal();
  const std::string name = NameOf(path);
  if (name.empty() || name == "." || name == "..") {
    *reason = path.empty() ? "no file name given" : "not a file name";
    return false;
  }
  // A folder of that name is not replaced by a file.
  struct stat target {};
  const bool exists = ::lstat(path.c_str(), &target) == 0;
  if (exists && S_ISDIR(target.st_mode)) {
    *reason = ErrorText(EISDIR);
    return false;
  }
  // The temporary name: a dot, the target's name (shortened so that the whole stays within a
  // file name's length), a dot and six characters that mkstemp chooses and creates exclusively.
  const std::string folder = FolderOf(path);
  std::string pattern = (folder == "/" ? std::string() : folder) + "/." + name.substr(0, 200) + ".XXXXXX";
  std::vector<char> temp(pattern.begin(), pattern.end());
  temp.push_back('\0');
  const int fd = ::mkostemp(temp.data(), O_CLOEXEC);
  if (fd < 0) {
    *reason = ErrorText(errno);
    return false;
  }
  const std::string tempPath(temp.data());
  int err = 0;
  bool ok = true;
  // The new file keeps the permissions of the file it replaces, or those of any new file.
  const mode_t mode = exists && S_ISREG(target.st_mode) ? (target.st_mode & 07777) : NewFileMode();
  if (::fchmod(fd, mode) != 0) {
    err = errno;
    ok = false;
  }
  if (ok && !fill(tempPath, reason)) {
    ok = false;
    err = -1;  // the reason is the filler's
  }
  // A filler that opened the file by its name wrote into this same file: make sure it is still
  // the one created above before it is flushed and moved into place.
  struct stat mine {
  }, named{};
  if (ok && (::fstat(fd, &mine) != 0 || ::lstat(tempPath.c_str(), &named) != 0 ||
             mine.st_ino != named.st_ino || mine.st_dev != named.st_dev)) {
    err = EIO;
    ok = false;
  }
  if (ok && ::fsync(fd) != 0) {
    err = errno;
    ok = false;
  }
  if (::close(fd) != 0 && ok) {
    err = errno;
    ok = false;
  }
  if (ok && std::rename(tempPath.c_str(), path.c_str()) != 0) {
    err = errno;
    ok = false;
  }
  if (!ok) {
    ::unlink(tempPath.c_str());
    if (err != -1) *reason = ErrorText(err);
    return false;
  }
  // The rename itself reaches the disk with the folder.
  const int dir = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (dir >= 0) {
    ::fsync(dir);
    ::close(dir);
  }
  return true;
}

bool ReplaceFile(const std::string& path, std::string_view bytes, std::string* reason) {
  // The filler writes through a descriptor of its own on the temporary file just created.
  return ReplaceFileWith(
      path,
      [&](const std::string& tempPath, std::string* why) {
        const int fd = ::open(tempPath.c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC);
        if (fd < 0) {
          *why = ErrorText(errno);
          return false;
        }
        int err = 0;
        const bool written = WriteAll(fd, bytes, &err);
        if (::close(fd) != 0 && written) err = errno;
        if (!written || err != 0) {
          *why = ErrorText(err);
          return false;
        }
        return true;
      },
      reason);
}

ReadStatus ReadFileBounded(const std::string& path, std::size_t limit, std::string* bytes,
                           std::string* reason, Oversize oversize) {
  std::string ignored;
  if (!reason) reason = &ignored;
  bytes->clear();
  // Looked at before it is opened: opening a FIFO would wait for a writer, and a device is no file.
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0) {
    *reason = ErrorText(errno);
    return errno == ENOENT || errno == ENOTDIR ? ReadStatus::Missing : ReadStatus::Failed;
  }
  if (!S_ISREG(st.st_mode)) {
    *reason = S_ISDIR(st.st_mode) ? ErrorText(EISDIR) : "not a regular file";
    return ReadStatus::NotAFile;
  }
  if (oversize == Oversize::Refuse && static_cast<unsigned long long>(st.st_size) > limit) {
    *reason = "larger than " + std::to_string(limit) + " bytes";
    return ReadStatus::TooLarge;
  }
  // O_NONBLOCK: should the name have become a FIFO meanwhile, the open does not wait.
  const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (fd < 0) {
    *reason = ErrorText(errno);
    return errno == ENOENT ? ReadStatus::Missing : ReadStatus::Failed;
  }
  if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
    ::close(fd);
    *reason = "not a regular file";
    return ReadStatus::NotAFile;
  }
  // Read in pieces up to the bound and one byte beyond, whatever size the file claims: a file that
  // grows while it is read is caught here too.
  ReadStatus status = ReadStatus::Ok;
  try {
    char buf[16384];
    while (bytes->size() <= limit) {
      const size_t want = std::min(sizeof buf, limit + 1 - bytes->size());
      const ssize_t n = ::read(fd, buf, want);
      if (n < 0) {
        if (errno == EINTR) continue;
        *reason = ErrorText(errno);
        status = ReadStatus::Failed;
        break;
      }
      if (n == 0) break;
      bytes->append(buf, static_cast<size_t>(n));
    }
  } catch (const std::bad_alloc&) {
    *reason = ErrorText(ENOMEM);
    status = ReadStatus::Failed;
  }
  ::close(fd);
  if (status == ReadStatus::Ok && bytes->size() > limit) {
    if (oversize == Oversize::ReadPrefix) {
      bytes->resize(limit);
    } else {
      *reason = "larger than " + std::to_string(limit) + " bytes";
      status = ReadStatus::TooLarge;
    }
  }
  if (status != ReadStatus::Ok) bytes->clear();
  return status;
}

}  // namespace vn
