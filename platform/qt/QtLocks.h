// Locks between running programs as Qt gives them.
#pragma once

#include <QLockFile>
#include <memory>
#include <vector>

#include "platform/Services.h"
#include "platform/qt/Conversions.h"

namespace tessarin {

class QtLocks : public Locks {
  public:
    bool Take(const std::string& path) override {
        auto lock = std::make_unique<QLockFile>(ToQt(path));
        // Only a program that is gone leaves its lock; age alone says nothing.
        lock->setStaleLockTime(0);
        if (!lock->tryLock(0)) {
            return false;
        }
        taken_.push_back(std::move(lock));
        return true;
    }

  private:
    std::vector<std::unique_ptr<QLockFile>> taken_;
};

}  // namespace tessarin
