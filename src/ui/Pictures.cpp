#include "ui/Pictures.h"

#include <QCoreApplication>
#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QPointer>
#include <QSvgRenderer>

#include <map>
#include <set>

namespace nb::ui {

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
    const QString path = name.rfind(":/", 0) == 0 ? QString::fromStdString(name)
                                                  : ":/art/" + QString::fromStdString(name);
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

QPixmap renderedPicture(const std::string &name, QSize size, qreal ratio, bool &missing)
{
    // Rendered pictures are shared by every screen: opening a screen again, or another screen
    // with the same picture at the same size, costs a lookup instead of a new rendering.
    QSvgRenderer *svg = pictureRenderer(name);
    missing = svg == nullptr;
    if (!svg || size.isEmpty())
        return {};
    const QString key = QStringLiteral("nb-picture:%1:%2x%3@%4")
                            .arg(QString::fromStdString(name))
                            .arg(size.width())
                            .arg(size.height())
                            .arg(ratio);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = QPixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    {
        QPainter pp(&pixmap);
        pp.setRenderHint(QPainter::Antialiasing);
        svg->render(&pp, fitPicture(*svg, QRectF(QPointF(), QSizeF(size))));
    }
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

} // namespace nb::ui
