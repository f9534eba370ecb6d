// The rights of somebody who has no special ones, for tests that run as root.
#pragma once

#include <unistd.h>

#include <cstdlib>

namespace tessarin {

/// While it lives, files are opened with an ordinary user's rights.
class OrdinaryUser {
  public:
    OrdinaryUser() { Become(own_ == 0 ? kNobody : own_); }
    ~OrdinaryUser() { Become(own_); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

  private:
    static constexpr uid_t kNobody = 65534;

    static void Become(uid_t user) {
        if (seteuid(user) != 0) {
            std::abort();  // the rest of the tests would run with wrong rights
        }
    }

    uid_t own_ = geteuid();
};

}  // namespace tessarin
