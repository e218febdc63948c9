#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <utility>

#include "platform/excel/FileLayer.h"

/// The real file system, until the given number of changes to files are through: then the next change is
/// done in part only (a write of more than a page to its half; no system tears a smaller one when a process
/// dies) and the interruption is called, once.
class InterruptingLayer : public velmar::excel::FileLayer {
 public:
  InterruptingLayer(int changes, std::function<void()> interruption)
      : left_(changes), interruption_(std::move(interruption)) {}

  bool Interrupted() const { return left_ < 0; }

  bool Exists(const std::string& path) override { return Native().Exists(path); }
  std::unique_ptr<velmar::excel::File> OpenForReading(const std::string& path) override {
    return Native().OpenForReading(path);
  }
  std::unique_ptr<velmar::excel::File> OpenForWriting(const std::string& path) override {
    return std::make_unique<Guarded>(*this, Native().OpenForWriting(path));
  }
  std::unique_ptr<velmar::excel::File> Create(const std::string& path) override {
    return std::make_unique<Guarded>(*this, Native().Create(path));
  }

 private:
  class Guarded : public velmar::excel::File {
   public:
    Guarded(InterruptingLayer& layer, std::unique_ptr<velmar::excel::File> file)
        : layer_(layer), file_(std::move(file)) {}

    std::uint64_t Size() const override { return file_->Size(); }
    void Lock() override { file_->Lock(); }
    void Resize(std::uint64_t size) override {
      layer_.Change([] {});
      file_->Resize(size);
    }
    void Publish() override {
      layer_.Change([] {});
      file_->Publish();
    }

   protected:
    void DoRead(std::uint64_t offset, std::span<std::uint8_t> bytes) override { file_->Read(offset, bytes); }
    void DoWrite(std::uint64_t offset, std::span<const std::uint8_t> bytes) override {
      layer_.Change([&] {
        if (bytes.size() > 4096) file_->Write(offset, bytes.first(bytes.size() / 2));
      });
      file_->Write(offset, bytes);
    }

   private:
    InterruptingLayer& layer_;
    std::unique_ptr<velmar::excel::File> file_;
  };

  template <typename Part>
  void Change(Part part) {
    if (left_ < 0 || left_-- > 0) return;
    part();
    interruption_();
  }

  int left_;
  std::function<void()> interruption_;
};
