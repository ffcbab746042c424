#pragma once

#include <QImage>

/// The picture as Format_RGBX8888, what is transparent laid on white. A picture of that format comes back as it is.
QImage onWhite(QImage image);
