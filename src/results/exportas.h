#pragma once

#include <QString>

// The export button of the end-of-draw prompt and the winner list: asks for a file ("导出文件",
// "中奖名单.csv" suggested), then writes every winner there and says where. Cancelling the
// dialog does nothing. Returns the path written, or an empty text.
QString exportWinnersAs();
