#include "core/events.h"

Events &events() {
    static Events instance;
    return instance;
}
