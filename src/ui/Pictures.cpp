#include "ui/Pictures.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPixmapCache>
#include <QPointer>
#include <QSaveFile>
#include <QStandardPaths>
#include <QSvgRenderer>

#include <map>
#include <set>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nb::ui {

namespace {
QString resourcePath(const std::string &name);
}

QSvgRenderer *pictureRenderer(const std::string &name)
{
    if (name.empty())
        return nullptr;
    // A missing picture is remembered, so it is looked for only once.
    static std::map<std::string, QPointer<QSvgRenderer>> loaded;
    static std::set<std::string> missing;
    if (auto it = loaded.find(name); it != loaded.end() && it->second)
        return it->second;
    if (missing.count(name))
        return nullptr;
    const QString path = resourcePath(name);
    if (!QFile::exists(path)) {
        missing.insert(name);
        return nullptr;
    }
    auto *svg = new QSvgRenderer(path, QCoreApplication::instance());
    if (!svg->isValid()) {
        delete svg;
        missing.insert(name);
        return nullptr;
    }
    svg->setAspectRatioMode(Qt::KeepAspectRatio);
    loaded[name] = svg;
    return svg;
}

QRectF fitPicture(QSvgRenderer &svg, const QRectF &box)
{
    QSizeF own = svg.viewBoxF().size();
    if (own.isEmpty())
        own = svg.defaultSize();
    if (own.isEmpty())
        return box;
    own.scale(box.size(), Qt::KeepAspectRatio);
    QRectF r(QPointF(), own);
    r.moveCenter(box.center());
    return r;
}

bool paintPicture(QPainter &p, const std::string &name, const QRectF &box)
{
    QSvgRenderer *svg = pictureRenderer(name);
    if (!svg)
        return false;
    svg->render(&p, fitPicture(*svg, box));
    return true;
}

bool CachedPicture::paint(QPainter &p, const std::string &name, const QRectF &box)
{
    const QSize size = box.size().toSize();
    const qreal ratio = p.device() ? p.device()->devicePixelRatioF() : 1.0;
    // A picture the size of a screen is painted from its rendering on disk each time rather than
    // kept in memory (about 3 MiB at 1024x768); small ones are kept.
    constexpr qint64 kKeepBytes = 1 << 20;
    if (qint64(size.width()) * size.height() * ratio * ratio * 4 > kKeepBytes &&
        paintLarge(p, name, size, ratio, box.topLeft())) {
        pixmap_ = {};
        name_.clear();
        return true;
    }
    if (name != name_ || size != size_ || ratio != ratio_) {
        name_ = name;
        size_ = size;
        ratio_ = ratio;
        pixmap_ = renderedPicture(name, size, ratio, missing_);
    }
    if (missing_)
        return false;
    if (!pixmap_.isNull())
        p.drawPixmap(box.topLeft(), pixmap_);
    return true;
}

namespace {

QString resourcePath(const std::string &name)
{
    return name.rfind(":/", 0) == 0 ? QString::fromStdString(name)
                                    : ":/art/" + QString::fromStdString(name);
}

// Rendering a large picture (the cover) takes tens of milliseconds, most of a cold start. Each
// rendering is therefore also kept on disk, in the user's cache folder, as raw premultiplied
// pixels: the next start reads it back in about a millisecond. The file name holds a digest of
// the picture's own bytes, the size and the pixel ratio, so a changed picture is never served
// stale. A cache that cannot be read or written is simply not used.
constexpr quint32 kDiskMagic = 0x4e425043; // "NBPC"

QString diskCacheFile(const QString &path, QSize pixels)
{
    const QString base = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    const QString folder = base.isEmpty() ? QString() : base + "/pictures";
    if (folder.isEmpty() || qEnvironmentVariableIsSet("NUMBROOK_NO_PICTURE_CACHE"))
        return {};
    QFile svg(path);
    if (!svg.open(QIODevice::ReadOnly))
        return {};
    const QByteArray digest =
        QCryptographicHash::hash(svg.readAll(), QCryptographicHash::Sha1).toHex().left(16);
    return QStringLiteral("%1/%2-%3x%4.px")
        .arg(folder, QString::fromLatin1(digest))
        .arg(pixels.width())
        .arg(pixels.height());
}

QImage readDiskCache(const QString &file, QSize pixels)
{
    QFile f(file);
    if (file.isEmpty() || !f.open(QIODevice::ReadOnly))
        return {};
    QDataStream in(&f);
    quint32 magic = 0;
    qint32 w = 0, h = 0;
    in >> magic >> w >> h;
    if (magic != kDiskMagic || w != pixels.width() || h != pixels.height())
        return {};
    QImage image(w, h, QImage::Format_ARGB32_Premultiplied);
    const qint64 bytes = qint64(image.sizeInBytes());
    if (f.read(reinterpret_cast<char *>(image.bits()), bytes) != bytes)
        return {};
    return image;
}

// Paints a cached rendering straight from its file, mapped into memory for the duration of the
// paint only: a picture as large as the window then costs no memory of its own between paints.
bool paintMapped(QPainter &p, const QString &file, QSize pixels, qreal ratio, QPointF at)
{
    if (file.isEmpty())
        return false;
    const QByteArray path = QFile::encodeName(file);
    const int fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    struct stat st
    {};
    constexpr qint64 header = 12; // magic, width, height
    const qint64 bytes = qint64(pixels.width()) * pixels.height() * 4;
    void *map = MAP_FAILED;
    if (::fstat(fd, &st) == 0 && st.st_size == header + bytes)
        map = ::mmap(nullptr, std::size_t(st.st_size), PROT_READ, MAP_PRIVATE, fd, 0);
    ::close(fd);
    if (map == MAP_FAILED)
        return false;
    const auto *data = static_cast<const uchar *>(map);
    const quint32 magic =
        quint32(data[0]) << 24 | quint32(data[1]) << 16 | quint32(data[2]) << 8 | quint32(data[3]);
    if (magic != kDiskMagic) {
        ::munmap(map, std::size_t(st.st_size));
        return false;
    }
    {
        QImage image(data + header, pixels.width(), pixels.height(), pixels.width() * 4,
                     QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        p.drawImage(at, image);
    }
    ::munmap(map, std::size_t(st.st_size));
    return true;
}

void writeDiskCache(const QString &file, const QImage &image)
{
    if (file.isEmpty() || !QDir().mkpath(QFileInfo(file).path()))
        return;
    QSaveFile f(file);
    if (!f.open(QIODevice::WriteOnly))
        return;
    QDataStream out(&f);
    out << kDiskMagic << qint32(image.width()) << qint32(image.height());
    f.write(reinterpret_cast<const char *>(image.constBits()), qint64(image.sizeInBytes()));
    f.commit();
}

QImage renderImage(const std::string &name, QSize size, qreal ratio)
{
    QSvgRenderer *svg = pictureRenderer(name);
    if (!svg)
        return {};
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter pp(&image);
    pp.setRenderHint(QPainter::Antialiasing);
    svg->render(&pp, fitPicture(*svg, QRectF(QPointF(), QSizeF(size))));
    return image;
}

} // namespace

bool paintLarge(QPainter &p, const std::string &name, QSize size, qreal ratio, QPointF at)
{
    const QString path = resourcePath(name);
    if (name.empty() || size.isEmpty() || !QFile::exists(path))
        return false;
    const QSize pixels = size * ratio;
    const QString file = diskCacheFile(path, pixels);
    if (file.isEmpty())
        return false;
    if (paintMapped(p, file, pixels, ratio, at))
        return true;
    const QImage image = renderImage(name, size, ratio);
    if (image.isNull())
        return false;
    writeDiskCache(file, image);
    p.drawImage(at, image);
    return true;
}

QPixmap renderedPicture(const std::string &name, QSize size, qreal ratio, bool &missing)
{
    // Rendered pictures are shared by every screen: opening a screen again, or another screen
    // with the same picture at the same size, costs a lookup instead of a new rendering.
    const QString path = resourcePath(name);
    missing = name.empty() || !QFile::exists(path);
    if (missing || size.isEmpty())
        return {};
    const QString key = QStringLiteral("nb-picture:%1:%2x%3@%4")
                            .arg(QString::fromStdString(name))
                            .arg(size.width())
                            .arg(size.height())
                            .arg(ratio);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    const QSize pixels = size * ratio;
    const QString file = diskCacheFile(path, pixels);
    QImage image = readDiskCache(file, pixels);
    if (image.isNull()) {
        image = renderImage(name, size, ratio);
        if (image.isNull()) {
            missing = true;
            return {};
        }
        writeDiskCache(file, image);
    }
    image.setDevicePixelRatio(ratio);
    pixmap = QPixmap::fromImage(std::move(image));
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

} // namespace nb::ui
