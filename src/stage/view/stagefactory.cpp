#include "stage/view/stagefactory.h"

#include "stage/view/qmlstage.h"

#include <QWidget>

namespace {

StageFactory &factory() {
    static StageFactory instance;
    return instance;
}

}  // namespace

void setStageFactory(StageFactory replacement) {
    factory() = std::move(replacement);
}

std::unique_ptr<Stage> createStage(QWidget *parent) {
    if (factory()) return factory()(parent);
    return std::make_unique<QmlStage>(parent);
}
