#include "core/BusyPointer.h"

namespace tessarin {

std::function<void(bool)> NaytaTiimalasi;

namespace {
int depth = 0;
}

BusyPointer::BusyPointer() {
    if (depth++ == 0 && NaytaTiimalasi) {
        NaytaTiimalasi(true);
    }
}

BusyPointer::~BusyPointer() {
    if (--depth == 0 && NaytaTiimalasi) {
        NaytaTiimalasi(false);
    }
}

}  // namespace tessarin
