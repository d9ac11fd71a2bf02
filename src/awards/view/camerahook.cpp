#include "awards/view/camerahook.h"

namespace awardcamera {

namespace {
Shot &instance() {
    static Shot registered;
    return registered;
}
}  // namespace

void setShot(Shot shot) {
    instance() = std::move(shot);
}

const Shot &shot() {
    return instance();
}

}  // namespace awardcamera
