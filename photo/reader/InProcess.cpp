// SPDX-License-Identifier: GPL-3.0-or-later
// The reader where the system has no means to confine a process: the same code, in this one.

#include "photo/PhotoLoader.h"
#include "photo/PhotoReader.h"

#include <utility>

class PhotoReader::Private {
public:
    QByteArray path;
    LoadedPhoto photo;
};

PhotoReader::PhotoReader(Reads)
    : m(std::make_unique<Private>())
{
}

PhotoReader::~PhotoReader() = default;

void PhotoReader::begin(const QByteArray& path)
{
    m->path = path;
    m->photo = loadPhoto(path);
}

const QByteArray& PhotoReader::path() const
{
    return m->path;
}

bool PhotoReader::isDone(int)
{
    return true;
}

int PhotoReader::descriptor() const
{
    return -1;
}

void PhotoReader::cancel() { }

LoadedPhoto PhotoReader::take()
{
    m->path.clear();
    return std::exchange(m->photo, {});
}

PhotoReader::End PhotoReader::end() const
{
    return End::Answered;
}

void PhotoReader::setProgram(const QByteArray&) { }
