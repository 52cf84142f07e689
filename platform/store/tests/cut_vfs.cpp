#include "platform/store/tests/cut_vfs.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace store {
namespace {

/// What stood at a place before a write that is not synced yet.
struct Undo {
  sqlite3_int64 offset;
  std::string old;
  sqlite3_int64 oldSize;
};

struct World {
  int left = 0;
  Cut cut = Cut::Kill;
  std::mt19937 lot;
  std::map<std::string, std::vector<Undo>> unsynced;
  std::map<std::string, bool> newFiles;             ///< made and not synced since
  std::map<std::string, std::string> deletedFiles;  ///< contents of files whose deletion is not synced
};

World world;
sqlite3_vfs* disk = nullptr;

std::string contentOf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void undoWrites(const std::string& path, const std::vector<Undo>& writes) {
  const int file = ::open(path.c_str(), O_RDWR);
  if (file < 0) return;
  for (auto write = writes.rbegin(); write != writes.rend(); ++write) {
    if (world.lot() % 2) continue;
    if (::pwrite(file, write->old.data(), write->old.size(), write->offset) < 0) break;
    if (world.lot() % 2 && ::ftruncate(file, write->oldSize) != 0) break;
  }
  ::close(file);
}

[[noreturn]] void end() {
  if (world.cut == Cut::Power) {
    for (const auto& [path, writes] : world.unsynced) undoWrites(path, writes);
    for (const auto& [path, fresh] : world.newFiles)
      if (fresh && world.lot() % 2) ::unlink(path.c_str());
    for (const auto& [path, content] : world.deletedFiles)
      if (world.lot() % 2)
        std::ofstream(path, std::ios::binary).write(content.data(), static_cast<long>(content.size()));
  }
  ::_exit(kCutStatus);
}

void countOperation() {
  if (--world.left < 0) end();
}

struct CutFile {
  sqlite3_file base;
  std::string* path;
  sqlite3_file* real;  ///< the disk's own file, behind this one in the same memory
};

CutFile& cutFile(sqlite3_file* file) { return *reinterpret_cast<CutFile*>(file); }
sqlite3_file* real(sqlite3_file* file) { return cutFile(file).real; }

void remember(CutFile& file, sqlite3_int64 offset, int size) {
  Undo undo{offset, {}, 0};
  file.real->pMethods->xFileSize(file.real, &undo.oldSize);
  undo.old.assign(static_cast<size_t>(size), '\0');
  file.real->pMethods->xRead(file.real, undo.old.data(), size, offset);
  world.unsynced[*file.path].push_back(std::move(undo));
}

int closeFile(sqlite3_file* file) {
  delete cutFile(file).path;
  return real(file)->pMethods->xClose(real(file));
}
int readFile(sqlite3_file* file, void* into, int size, sqlite3_int64 offset) {
  return real(file)->pMethods->xRead(real(file), into, size, offset);
}
int writeFile(sqlite3_file* file, const void* from, int size, sqlite3_int64 offset) {
  countOperation();
  remember(cutFile(file), offset, size);
  return real(file)->pMethods->xWrite(real(file), from, size, offset);
}
int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
  countOperation();
  sqlite3_int64 old = 0;
  real(file)->pMethods->xFileSize(real(file), &old);
  if (old > size) remember(cutFile(file), size, static_cast<int>(old - size));
  return real(file)->pMethods->xTruncate(real(file), size);
}
int syncFile(sqlite3_file* file, int flags) {
  countOperation();
  const int done = real(file)->pMethods->xSync(real(file), flags);
  world.unsynced.erase(*cutFile(file).path);
  world.newFiles.erase(*cutFile(file).path);
  return done;
}
int fileSize(sqlite3_file* file, sqlite3_int64* size) {
  return real(file)->pMethods->xFileSize(real(file), size);
}
int lockFile(sqlite3_file* file, int kind) { return real(file)->pMethods->xLock(real(file), kind); }
int unlockFile(sqlite3_file* file, int kind) { return real(file)->pMethods->xUnlock(real(file), kind); }
int checkLock(sqlite3_file* file, int* held) {
  return real(file)->pMethods->xCheckReservedLock(real(file), held);
}
int controlFile(sqlite3_file* file, int kind, void* data) {
  return real(file)->pMethods->xFileControl(real(file), kind, data);
}
int sectorSize(sqlite3_file* file) { return real(file)->pMethods->xSectorSize(real(file)); }
int deviceFacts(sqlite3_file* file) { return real(file)->pMethods->xDeviceCharacteristics(real(file)); }

const sqlite3_io_methods kMethods = {1,           closeFile,  readFile,    writeFile,  truncateFile,
                                     syncFile,    fileSize,   lockFile,    unlockFile, checkLock,
                                     controlFile, sectorSize, deviceFacts, nullptr,    nullptr,
                                     nullptr,     nullptr,    nullptr,     nullptr};

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
  CutFile& made = cutFile(file);
  made.real = reinterpret_cast<sqlite3_file*>(&made + 1);
  made.base.pMethods = nullptr;
  const bool fresh = name && ::access(name, F_OK) != 0;
  const int done = disk->xOpen(disk, name, made.real, flags, outFlags);
  if (done != SQLITE_OK) return done;
  made.path = new std::string(name ? name : "");
  made.base.pMethods = &kMethods;
  if (fresh) world.newFiles[*made.path] = true;
  return SQLITE_OK;
}

int deleteFile(sqlite3_vfs*, const char* name, int syncFolder) {
  countOperation();
  const std::string content = contentOf(name);
  const int done = disk->xDelete(disk, name, syncFolder);
  world.unsynced.erase(name);
  world.newFiles.erase(name);
  if (done == SQLITE_OK && syncFolder)
    world.deletedFiles.clear();  // one folder: its sync makes all deletions stand
  else if (done == SQLITE_OK)
    world.deletedFiles[name] = content;
  return done;
}

}  // namespace

void cutAfter(int operations, Cut cut, unsigned lot) {
  world.left = operations;
  world.cut = cut;
  world.lot.seed(lot);
  disk = sqlite3_vfs_find(nullptr);
  static sqlite3_vfs between = *disk;
  between.szOsFile = static_cast<int>(sizeof(CutFile)) + disk->szOsFile;
  between.zName = "cut";
  between.xOpen = openFile;
  between.xDelete = deleteFile;
  sqlite3_vfs_register(&between, 1);
}

}  // namespace store
