#pragma once

#include <functional>
#include <memory>

#include "stage/stage.h"

class QWidget;

// Screens get their stages here: a QmlStage unless a factory is set. Tests replace the factory
// with one that makes recording stages.
using StageFactory = std::function<std::unique_ptr<Stage>(QWidget *parent)>;
void setStageFactory(StageFactory factory);
std::unique_ptr<Stage> createStage(QWidget *parent);
