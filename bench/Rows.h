// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image/CharImage.h"
#include "tests/reference/Picture.h"

#include <QImage>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A photo and what the rows work on. Everything is made before the clock runs and used again by each row.
struct Subject {
    Subject(int width, int height);

    const Picture photo;
    const QImage platform; ///< the photo again, over the same bytes
    const std::unique_ptr<lumora::CharImage> image; ///< a copy as the bridge makes it, anew before each measurement
    std::vector<unsigned char> map;
    double copySeconds; ///< of a plain memcpy of the photo

    // What a row makes, gone before the next measurement.
    std::unique_ptr<lumora::CharImage> made;
    QImage rendered;
    unsigned char* block = nullptr;

    void restore(); ///< as before the first measurement
};

/// One row of the table.
struct Row {
    std::string name;
    std::function<void(Subject&)> operation; ///< what is measured
    std::function<void(Picture&)> twin = {}; ///< its slow literal twin, if it is compared with one
    std::function<void(Subject&)> prepare = {}; ///< what comes before the clock runs
    bool isLook = false;
};

std::vector<Row> allRows();
