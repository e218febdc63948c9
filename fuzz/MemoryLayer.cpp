#include "fuzz/MemoryLayer.h"

#include <algorithm>
#include <cerrno>
#include <span>
#include <utility>

#include "platform/excel/WorkbookErrors.h"

namespace velmar::fuzz {

namespace {

constexpr std::uint64_t kDisk = 1 << 20;

}  // namespace

class MemoryLayer::MemoryFile : public excel::File {
 public:
  MemoryFile(MemoryLayer& layer, std::string path, std::shared_ptr<Content> content)
      : layer_(layer), path_(std::move(path)), content_(std::move(content)) {}

  std::uint64_t Size() const override { return content_->size(); }
  void Resize(std::uint64_t size) override {
    RequireRoom(size);
    content_->resize(size);
  }
  void Lock() override {}
  void Publish() override { layer_.files_[path_] = content_; }

 protected:
  void DoRead(std::uint64_t offset, std::span<std::uint8_t> bytes) override {
    if (offset > content_->size() || bytes.size() > content_->size() - offset) {
      throw excel::WorkbookErrors::Truncated(path_);
    }
    std::copy_n(content_->begin() + static_cast<std::ptrdiff_t>(offset), bytes.size(), bytes.begin());
  }
  void DoWrite(std::uint64_t offset, std::span<const std::uint8_t> bytes) override {
    RequireRoom(offset + bytes.size());
    if (content_->size() < offset + bytes.size()) content_->resize(offset + bytes.size());
    std::copy(bytes.begin(), bytes.end(), content_->begin() + static_cast<std::ptrdiff_t>(offset));
  }

 private:
  void RequireRoom(std::uint64_t size) const {
    if (size > kDisk) throw excel::WorkbookErrors::System(ENOSPC, "escribir", path_);
  }

  MemoryLayer& layer_;
  std::string path_;
  std::shared_ptr<Content> content_;
};

std::shared_ptr<MemoryLayer::Content>& MemoryLayer::Find(const std::string& path) {
  std::shared_ptr<Content>& content = files_[path];
  if (content == nullptr) content = std::make_shared<Content>();
  return content;
}

std::unique_ptr<excel::File> MemoryLayer::OpenForReading(const std::string& path) {
  return std::make_unique<MemoryFile>(*this, path, Find(path));
}

std::unique_ptr<excel::File> MemoryLayer::OpenForWriting(const std::string& path) {
  return OpenForReading(path);
}

std::unique_ptr<excel::File> MemoryLayer::Create(const std::string& path) {
  return std::make_unique<MemoryFile>(*this, path, std::make_shared<Content>());
}

}  // namespace velmar::fuzz
