#include "core/appstate.h"

namespace {
AppState g_state;
}

AppState &appState() {
    return g_state;
}

void resetAppState() {
    g_state = AppState();
}
