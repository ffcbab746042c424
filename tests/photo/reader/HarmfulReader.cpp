// SPDX-License-Identifier: GPL-3.0-or-later
// The reader with decoders that do harm. Each takes the files that begin with its name, and does what a hostile file
// might bring a real decoder to do.

#include "photo/reader/Reader.h"

#include <QImageIOPlugin>
#include <fcntl.h>
#include <new>
#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

/// A picture that nobody gets: the harm comes first.
bool readPlainly(QImage* image)
{
    *image = QImage(2, 2, QImage::Format_RGB32);
    image->fill(Qt::red);
    return true;
}

bool breakDown(QImage*)
{
    volatile int* nowhere = nullptr;
    *nowhere = 1; // NOLINT
    return false;
}

bool loop(QImage*)
{
    for (volatile bool always = true; always;)
        ;
    return false;
}

bool waitForever(QImage*)
{
    for (;;)
        poll(nullptr, 0, -1);
}

/// More than any machine has. Where that is not refused, there is a picture.
bool eatMemory(QImage* image)
{
    constexpr std::size_t portion = std::size_t(1) << 26, all = std::size_t(1) << 43;
    for (std::size_t taken = 0; taken < all; taken += portion)
        if (mmap(nullptr, portion, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) == MAP_FAILED)
            throw std::bad_alloc();
    return !image || readPlainly(image);
}

bool openFile(QImage* image)
{
    open("/etc/hostname", O_RDONLY | O_CLOEXEC); // NOLINT
    return readPlainly(image);
}

bool openSocket(QImage* image)
{
    socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0); // NOLINT
    return readPlainly(image);
}

struct Harm {
    QByteArray name;
    bool (*read)(QImage*);
    bool isInHeader = false; ///< done where the size is told
};

const Harm harms[] = {
    {"HARM break", breakDown},
    {"HARM loop", loop},
    {"HARM memory", eatMemory},
    {"HARM header memory", eatMemory, true},
    {"HARM header wait", waitForever, true},
    {"HARM file", openFile},
    {"HARM socket", openSocket},
    {"HARM none", readPlainly},
};

const Harm* harmOf(QIODevice* device)
{
    for (const Harm& harm : harms)
        if (device && device->peek(harm.name.size()) == harm.name)
            return &harm;
    return nullptr;
}

class HarmfulHandler : public QImageIOHandler {
public:
    bool canRead() const override { return harmOf(device()); }
    bool read(QImage* image) override { return harmOf(device())->read(image); }
    bool supportsOption(ImageOption option) const override { return option == Size && harmOf(device())->isInHeader; }
    QVariant option(ImageOption option) const override
    {
        if (supportsOption(option))
            harmOf(device())->read(nullptr);
        return {};
    }
};

} // namespace

class HarmfulDecoders : public QImageIOPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "HarmfulReader.json")

public:
    Capabilities capabilities(QIODevice* device, const QByteArray&) const override
    {
        return harmOf(device) ? CanRead : Capabilities();
    }
    QImageIOHandler* create(QIODevice* device, const QByteArray& format) const override
    {
        auto* handler = new HarmfulHandler;
        handler->setDevice(device);
        handler->setFormat(format);
        return handler;
    }
};

Q_IMPORT_PLUGIN(HarmfulDecoders)

int main()
{
    return runReader(STDIN_FILENO);
}

#include "HarmfulReader.moc"
