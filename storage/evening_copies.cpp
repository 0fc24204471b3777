#include "evening_copies.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <fstream>
#include <iterator>
#include <mutex>
#include <vector>

#include "file_system.h"
#include "game_file.h"
#include "path_text.h"
#include "text_lines.h"

namespace storage {
namespace {

using std::filesystem::path;

constexpr const char* kExtension = ".obg";
constexpr std::size_t kLongestTitle = 100;  // bytes of a name
constexpr int kMostOfOneName = 100;
constexpr auto kPatience = std::chrono::seconds(1);
constexpr auto kMinute = std::chrono::minutes(1);

/// "2026-11-23 19.42", by the clock on the wall.
std::string Stamp(std::time_t time) {
  char text[32] = {};
  return {text, std::strftime(text, sizeof text, "%Y-%m-%d %H.%M", std::localtime(&time))};
}

/// Whether a name begins like those of copies and has their extension.
bool IsCopy(const std::string& name) {
  constexpr std::string_view kPattern = "0000-00-00 00.00";
  const auto fits = [](char pattern, char found) {
    return pattern == '0' ? found >= '0' && found <= '9' : pattern == found;
  };
  return name.ends_with(kExtension) && name.size() >= kPattern.size() &&
         std::equal(kPattern.begin(), kPattern.end(), name.begin(), fits);
}

/// What of a title a file name can hold.
std::string NameOf(const std::string& title) {
  std::string name = title.substr(0, kLongestTitle);
  while (name.size() < title.size() && !name.empty() && (title[name.size()] & 0xC0) == 0x80) name.pop_back();
  for (char& byte : name) {
    if (!file_system::FitsInName(byte) || static_cast<unsigned char>(byte) < ' ' || byte == 0x7F) byte = '-';
  }
  const auto last = name.find_last_not_of(' ');
  return last == std::string::npos ? "" : name.substr(0, last + 1);
}

/// A time that is still to come, since the clock was set back, becomes now, so that the file grows old from here on.
std::filesystem::file_time_type AgeOf(const path& file) {
  std::error_code unknown;
  const auto now = std::filesystem::file_time_type::clock::now();
  const auto written = std::filesystem::last_write_time(file, unknown);
  if (unknown || written <= now) return written;
  std::filesystem::last_write_time(file, now, unknown);
  return now;
}

std::string_view WithoutClock(std::string_view gameFile) {
  const auto end = gameFile.find_last_of('\n', gameFile.empty() ? 0 : gameFile.size() - 2);
  return gameFile.substr(0, end);
}

}  // namespace

GameCopy::GameCopy(path folder, std::time_t begun) : folder_(std::move(folder)), stamp_(Stamp(begun)) {}

WriteOutcome GameCopy::Write(const std::string& title, std::string_view bytes) {
  std::error_code unknown;  // the write fails then, and tells
  std::filesystem::create_directories(folder_, unknown);
  const std::string name = NameOf(title);
  if (!file_.empty() && name == name_) return WriteWhole(file_, bytes);
  const path before = file_;
  const WriteOutcome written = WriteUnderNewName(name, bytes);
  if (!written) return written;
  std::error_code stays;
  if (!before.empty()) std::filesystem::remove(before, stays);
  RemoveOldCopies();
  return written;
}

WriteOutcome GameCopy::WriteUnderNewName(const std::string& name, std::string_view bytes) {
  const std::string begin = stamp_ + (name.empty() ? "" : " " + name);
  WriteOutcome written;
  for (int number = 1; number <= kMostOfOneName; ++number) {
    const path file = folder_ / PathOf(begin + (number == 1 ? "" : " (" + std::to_string(number) + ")") + kExtension);
    written = WriteNew(file, bytes);
    if (written.Failure == WriteFailure::Taken) continue;
    if (written) {
      file_ = file;
      name_ = name;
    }
    return written;
  }
  return written;
}

/// Other files in the folder are let be, and so is the file of this game, whatever the clock says.
void GameCopy::RemoveOldCopies() const {
  std::vector<std::pair<std::filesystem::file_time_type, path>> copies;
  std::error_code unknown;
  for (std::filesystem::directory_iterator found(folder_, unknown), end; !unknown && found != end;
       found.increment(unknown)) {
    std::error_code gone;
    const path& file = found->path();
    if (file != file_ && IsCopy(TextOf(file.filename())) && is_regular_file(found->symlink_status(gone))) {
      copies.emplace_back(AgeOf(file), file);
    }
  }
  std::ranges::sort(copies, std::ranges::greater());
  for (std::size_t i = kMostCopies - 1; i < copies.size(); ++i) std::filesystem::remove(copies[i].second, unknown);
}

struct CopyWriter::Shared {
  struct Job {
    std::shared_ptr<GameCopy> Copy;
    std::string Title;
    std::string Bytes;
  };

  mutable std::mutex Guard;
  std::condition_variable Changed;
  std::deque<Job> Waiting;
  bool Ends = false;
  bool Done = false;  ///< the thread has nothing left to do and is about to end
  bool Failed = false;

  void Run();
};

void CopyWriter::Shared::Run() {
  std::unique_lock lock(Guard);
  for (;;) {
    Changed.wait(lock, [this] { return Ends || !Waiting.empty(); });
    if (Waiting.empty()) break;
    const Job job = std::move(Waiting.front());
    Waiting.pop_front();
    lock.unlock();
    const bool failed = !job.Copy->Write(job.Title, job.Bytes);
    lock.lock();
    Failed = failed;
  }
  Done = true;
  Changed.notify_all();
}

CopyWriter::CopyWriter() : shared_(std::make_shared<Shared>()), thread_([shared = shared_] { shared->Run(); }) {}

CopyWriter::~CopyWriter() {
  std::unique_lock lock(shared_->Guard);
  shared_->Ends = true;
  shared_->Changed.notify_all();
  if (!shared_->Changed.wait_for(lock, kPatience, [this] { return shared_->Done; })) thread_.detach();
}

void CopyWriter::Put(std::shared_ptr<GameCopy> copy, std::string title, std::string bytes) {
  const std::lock_guard lock(shared_->Guard);
  std::erase_if(shared_->Waiting, [&copy](const Shared::Job& job) { return job.Copy == copy; });
  shared_->Waiting.push_back({std::move(copy), std::move(title), std::move(bytes)});
  shared_->Changed.notify_all();
}

bool CopyWriter::HasFailed() const {
  const std::lock_guard lock(shared_->Guard);
  return shared_->Failed;
}

EveningKeeper::~EveningKeeper() {
  if (folder_.empty()) return;
  std::string bytes = GameFileText(state_);
  const bool changed = WithoutClock(bytes) != WithoutClock(kept_);
  if (changed || (copy_ && bytes != kept_)) Keep(std::move(bytes), {});
}

void EveningKeeper::Start(const path& folder) {
  folder_ = folder;
  kept_ = GameFileText(state_);
}

void EveningKeeper::Look(Time now) {
  if (folder_.empty()) return;
  std::string bytes = GameFileText(state_);
  const bool changed = WithoutClock(bytes) != WithoutClock(kept_);
  const bool late = copy_ && now - keptAt_ >= kMinute && (bytes != kept_ || writer_->HasFailed());
  if (changed || late) Keep(std::move(bytes), now);
}

void EveningKeeper::BeginGame() {
  copy_.reset();
  kept_.clear();
  Look();
}

void EveningKeeper::Keep(std::string bytes, Time now) {
  if (!copy_) copy_ = std::make_shared<GameCopy>(folder_, std::time(nullptr));
  if (!writer_) writer_ = std::make_unique<CopyWriter>();
  kept_ = std::move(bytes);
  keptAt_ = now;
  writer_->Put(copy_, state_.game.GameTitle, kept_);
}

WriteOutcome WriteGame(const path& file, std::string_view bytes, const path& copies) {
  const WriteOutcome whole = WriteWhole(file, bytes);
  if (whole.Failure != WriteFailure::NotAllowed || copies.empty()) return whole;
  std::ifstream old = OpenRegularFile(file);
  if (!old.is_open()) return whole;
  std::string oldBytes;
  try {
    oldBytes.assign(std::istreambuf_iterator<char>(old), {});
  } catch (const std::ios_base::failure&) {  // a disk with a fault
    return whole;
  }
  GameCopy copy(copies, std::time(nullptr));
  return copy.Write(TextOf(file.stem()), oldBytes) ? WriteInPlace(file, bytes) : whole;
}

}  // namespace storage
