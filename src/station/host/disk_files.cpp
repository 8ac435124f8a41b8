#include "station/host/disk_files.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <unordered_set>

#include "station/host/host_file.h"
#include "station/host/host_file_copy.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

using FileType = std::filesystem::file_type;

constexpr std::chrono::milliseconds kFolderTimeGrain{50};

struct FolderCloser {
  void operator()(DIR* folder) const { ::closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, FolderCloser>;

bool IsFolder(const std::string& host_path) {
  struct stat about {};
  return ::stat(host_path.c_str(), &about) == 0 && S_ISDIR(about.st_mode);
}

bool IsFile(const std::string& host_path) {
  struct stat about {};
  return ::stat(host_path.c_str(), &about) == 0 && S_ISREG(about.st_mode);
}

FileType TypeOf(const std::string& folder, const dirent& entry) {
  if (entry.d_type == DT_REG) return FileType::regular;
  if (entry.d_type == DT_DIR) return FileType::directory;
  const std::string path = folder + '/' + entry.d_name;  // a link, or a file system that does not tell
  if (IsFile(path)) return FileType::regular;
  return IsFolder(path) ? FileType::directory : FileType::unknown;
}

/// A name of the host as the station can hold it, and write between quotes and into a path.
std::string StationName(std::string_view host_name) {
  std::string name = FromUtf8(host_name);
  const auto unfit = [](char c) { return c == '"' || c == '\\' || (c >= 0 && c < ' '); };
  std::replace_if(name.begin(), name.end(), unfit, '?');
  return name;
}

std::string WithMark(const std::string& name, int number) {
  const std::size_t dot = std::min(name.rfind('.'), name.size());
  return name.substr(0, dot) + '~' + std::to_string(number) + name.substr(dot);
}

}  // namespace

Result<std::string> DiskFiles::Read(std::string_view path) {
  auto place = Locate(path);
  if (!place.ok()) return place.error();
  Result<std::string> content = host_file::ReadAll(place.value().exact());
  if (content.ok() || content.error() != RunTimeError::kFileNotFound) return content;
  const auto real = Existing(place.value());
  if (real.ok()) return host_file::ReadAll(real.value());
  if (!ForgetMissingFolder(place.value())) return real.error();
  place = Locate(path);
  return place.ok() ? host_file::ReadAll(place.value().exact()) : place.error();
}

Status DiskFiles::Write(std::string_view path, std::string_view bytes, Durability durability) {
  return Put(path, bytes, host_file::Replace, durability);
}

Status DiskFiles::Append(std::string_view path, std::string_view bytes, Durability durability) {
  return Put(path, bytes, host_file::AppendLines, durability);
}

Status DiskFiles::Put(std::string_view path, std::string_view bytes, PutFunction put, Durability durability) {
  auto place = Locate(path);
  if (place.ok() && ForgetMissingFolder(place.value())) place = Locate(path);
  if (!place.ok()) return place.error();
  std::string target = place.value().exact();
  const auto real = Existing(place.value());
  const bool is_new = !real.ok();
  if (!is_new) target = real.value();
  const bool index_held = is_new && NamedIndex(place.value().folder) != nullptr;
  const bool flush = durability == Durability::kFlushed && flushing_ == Flushing::kToDisk;
  const Status written = put(target, bytes, flush);
  if (is_new && written.error() == RunTimeError::kFileNotFound) return RunTimeError::kPathNotFound;
  if (is_new && IsFile(target)) Remember(place.value().folder, place.value().name, index_held);
  if (is_new && flush) host_file::FlushFolder(place.value().folder);
  return written;
}

Status DiskFiles::Delete(std::string_view path) {
  auto place = Locate(path);
  if (place.ok() && ForgetMissingFolder(place.value())) place = Locate(path);
  if (!place.ok()) return place.error();
  const auto real = Existing(place.value());
  if (!real.ok()) return real.error();
  const FolderIndex* index = CurrentIndex(place.value().folder);
  const bool index_held = index != nullptr && index->named;
  if (::unlink(real.value().c_str()) != 0) return host_file::LastError();
  if (index_held) Forget(place.value().folder, place.value().name);
  return {};
}

Status DiskFiles::Copy(std::string_view from, std::string_view to) {
  Result<std::string> content = Read(from);
  if (!content.ok()) return content.error();
  if (AreSame(from, to)) return RunTimeError::kPermissionDenied;
  return Write(to, content.value(), Durability::kFlushed);
}

Result<std::unique_ptr<FileCopy>> DiskFiles::BeginCopy(std::string_view from, std::string_view to) {
  const auto source = HostPath(from);
  if (!source) {
    const auto why = Read(from);
    return why.ok() ? RunTimeError::kFileNotFound : why.error();
  }
  auto place = Locate(to);
  if (place.ok() && ForgetMissingFolder(place.value())) place = Locate(to);
  if (!place.ok()) return place.error();
  if (AreSame(from, to)) return RunTimeError::kPermissionDenied;
  return HostFileCopy::Begin(
      source->string(), place.value().folder, place.value().name,
      flushing_ == Flushing::kToDisk ? HostFileCopy::Pace::kBeside : HostFileCopy::Pace::kByStep);
}

Status DiskFiles::MakeFolder(std::string_view path) {
  auto place = Locate(path);
  if (place.ok() && ForgetMissingFolder(place.value())) place = Locate(path);
  if (!place.ok()) return place.error();
  if (IsFolder(place.value().exact()) || RealName(place.value().folder, place.value().name)) {
    return RunTimeError::kPathFileAccess;
  }
  if (::mkdir(place.value().exact().c_str(), 0777) != 0) {
    return errno == ENOENT ? RunTimeError::kPathNotFound : host_file::LastError();
  }
  return {};
}

bool DiskFiles::Exists(std::string_view path) {
  return HostPath(path).has_value();
}

Result<std::vector<std::string>> DiskFiles::List(std::string_view folder, std::string_view pattern) {
  const auto listing = Listing(folder);
  if (!listing.ok()) return listing.error();
  std::vector<std::string> names;
  for (const Entry& entry : listing.value()->entries) {
    if (entry.type != FileType::regular) continue;
    if (MatchesPattern(entry.shown, pattern)) names.push_back(entry.shown);
  }
  return names;
}

Result<std::vector<std::string>> DiskFiles::ListFolders(std::string_view folder) {
  const auto listing = Listing(folder);
  if (!listing.ok()) return listing.error();
  std::vector<std::string> names;
  for (const Entry& entry : listing.value()->entries) {
    if (entry.type == FileType::directory && entry.name.front() != '.') names.push_back(entry.shown);
  }
  return names;
}

std::vector<char> DiskFiles::DriveLetters() {
  std::vector<char> letters;
  for (const auto& [letter, directory] : drives_.table()) letters.push_back(letter);
  return letters;
}

Result<const DiskFiles::FolderIndex*> DiskFiles::Listing(std::string_view folder) {
  auto host_folder = HostFolder(folder);
  if (host_folder.ok() && ForgetMissingFolder({host_folder.value(), {}})) host_folder = HostFolder(folder);
  if (!host_folder.ok()) return host_folder.error();
  const FolderIndex* index = OrderedIndex(host_folder.value());
  if (index == nullptr) return host_file::LastError();
  return index;
}

std::optional<std::filesystem::path> DiskFiles::HostPath(std::string_view path) {
  auto place = Locate(path);
  if (!place.ok()) return std::nullopt;
  auto real = Existing(place.value());
  if (!real.ok() && ForgetMissingFolder(place.value())) {
    place = Locate(path);
    if (!place.ok()) return std::nullopt;
    real = Existing(place.value());
  }
  if (!real.ok()) return std::nullopt;
  return std::filesystem::path(std::move(real).value());
}

Result<std::filesystem::path> DiskFiles::HostPathToMake(std::string_view path) {
  if (auto there = HostPath(path)) return *std::move(there);
  const auto place = Locate(path);
  if (!place.ok()) return place.error();
  return std::filesystem::path(place.value().exact());
}

Result<DiskFiles::Place> DiskFiles::Locate(std::string_view path) {
  const std::size_t slash = path.find_last_of("\\/");
  if (path.size() < 3 || path[1] != ':' || slash == std::string_view::npos) return RunTimeError::kBadFileName;
  std::string name = ToUtf8(path.substr(slash + 1));
  if (name.empty() || name == "." || name == ".." || name.find('\0') != std::string::npos) {
    return RunTimeError::kBadFileName;
  }
  auto folder = HostFolder(path.substr(0, slash));
  if (!folder.ok()) return folder.error();
  return Place{std::move(folder).value(), std::move(name)};
}

Result<std::string> DiskFiles::HostFolder(std::string_view drive_and_folders) {
  if (const auto known = folders_.find(drive_and_folders); known != folders_.end()) return known->second;
  if (drive_and_folders.size() < 2 || drive_and_folders[1] != ':') return RunTimeError::kBadFileName;
  const auto drive = drives_.Directory(drive_and_folders[0]);
  if (!drive || !IsFolder(drive->string())) return RunTimeError::kDiskNotReady;
  std::string host = drive->string();
  std::string_view rest = drive_and_folders.substr(2);
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find_first_of("\\/"), rest.size());
    const std::string part = ToUtf8(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (part.empty()) continue;
    if (part == "..") return RunTimeError::kBadFileName;
    if (IsFolder(host + '/' + part)) {
      host.append(1, '/').append(part);
    } else if (const auto real = RealName(host, part); real && IsFolder(host + '/' + *real)) {
      host.append(1, '/').append(*real);
    } else {
      return RunTimeError::kPathNotFound;
    }
  }
  return folders_.emplace(std::string(drive_and_folders), host).first->second;
}

bool DiskFiles::ForgetMissingFolder(const Place& place) {
  if (IsFolder(place.folder)) return false;
  folders_.clear();
  return true;
}

Result<std::string> DiskFiles::Existing(const Place& place) {
  std::string exact = place.exact();
  if (IsFile(exact)) return exact;
  for (int attempt = 0; attempt < 2; ++attempt) {
    const auto real = RealName(place.folder, place.name);
    if (!real) return RunTimeError::kFileNotFound;
    std::string path = place.folder + '/' + *real;
    if (IsFile(path)) return path;
    indexes_.erase(place.folder);  // it was renamed or removed within the folder time's grain
  }
  return RunTimeError::kFileNotFound;
}

std::optional<std::string> DiskFiles::RealName(const std::string& folder, const std::string& name) {
  const FolderIndex* index = NamedIndex(folder);
  if (index == nullptr) return std::nullopt;
  const auto found = index->real_names.find(UpperCased(StationName(name)));
  if (found == index->real_names.end()) return std::nullopt;
  return found->second;
}

DiskFiles::FolderIndex* DiskFiles::CurrentIndex(const std::string& folder) {
  std::error_code error;
  const auto modified = std::filesystem::last_write_time(folder, error);
  if (error) return nullptr;
  FolderIndex& index = indexes_[folder];
  if (index.modified != modified) {
    index = FolderIndex();
    index.modified = modified;
  }
  return &index;
}

void DiskFiles::TellApart(std::vector<Entry>& entries) {
  std::unordered_set<std::string> taken;  // of the few names with a stand-in
  for (Entry& entry : entries) {
    if (entry.shown.find('?') == std::string::npos) continue;
    const std::string name = entry.shown;
    for (int number = 2; !taken.insert(UpperCased(entry.shown)).second; ++number)
      entry.shown = WithMark(name, number);
  }
}

const DiskFiles::FolderIndex* DiskFiles::OrderedIndex(const std::string& folder) {
  FolderIndex* index = CurrentIndex(folder);
  if (index == nullptr || index->ordered) return index;
  const OpenFolder stream(::opendir(folder.c_str()));
  if (!stream) return nullptr;
  index->entries.clear();
  while (const dirent* entry = ::readdir(stream.get())) {
    index->entries.push_back({entry->d_name, StationName(entry->d_name), TypeOf(folder, *entry)});
  }
  TellApart(index->entries);
  // A file made within the grain of the folder's time would not show: what is that fresh is listed anew next time.
  index->ordered = std::filesystem::file_time_type::clock::now() - index->modified > kFolderTimeGrain;
  return index;
}

const DiskFiles::FolderIndex* DiskFiles::NamedIndex(const std::string& folder) {
  FolderIndex* index = CurrentIndex(folder);
  if (index == nullptr || index->named) return index;
  if (OrderedIndex(folder) == nullptr) return nullptr;
  index->real_names.clear();
  for (const Entry& entry : index->entries) index->real_names.emplace(UpperCased(entry.shown), entry.name);
  index->named = index->ordered;
  return index;
}

void DiskFiles::Remember(const std::string& folder, const std::string& name, bool folder_was_current) {
  const auto held = indexes_.find(folder);
  if (held == indexes_.end() || !folder_was_current) return;
  std::error_code error;
  held->second.modified = std::filesystem::last_write_time(folder, error);
  held->second.real_names.emplace(UpperCased(StationName(name)), name);
  held->second.ordered = false;  // where the folder put it is not known
}

/// Else erasing a thousand recordings would list their folder anew for each.
void DiskFiles::Forget(const std::string& folder, const std::string& name) {
  const auto held = indexes_.find(folder);
  if (held == indexes_.end()) return;
  std::error_code error;
  held->second.modified = std::filesystem::last_write_time(folder, error);
  held->second.real_names.erase(UpperCased(FromUtf8(name)));
  held->second.ordered = false;
}

}  // namespace quixair
