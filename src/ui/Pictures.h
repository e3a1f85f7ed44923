#pragma once
// Pictures named by the model ("cover.svg") come from the compiled-in resources (":/art/...").
// Each file is parsed once, on first use; a missing or broken picture simply paints nothing.
#include <QPixmap>
#include <QRectF>
#include <QString>

#include <string>

class QPainter;
class QSvgRenderer;

namespace nb::ui {

// The renderer of a named picture, or nullptr when there is no such picture.
QSvgRenderer *pictureRenderer(const std::string &name);

// The picture's own width:height, fitted into box and centred.
QRectF fitPicture(QSvgRenderer &svg, const QRectF &box);

// Paints a picture straight onto a painter (used inside cached drawings). False when missing.
bool paintPicture(QPainter &p, const std::string &name, const QRectF &box);

// A picture rendered at a size, from a cache shared by every widget (empty when missing).
QPixmap renderedPicture(const std::string &name, QSize size, qreal ratio, bool &missing);

// Paints a picture at a size from its rendering kept on disk (rendering and keeping it first if
// needed), holding no memory afterwards. False when there is no disk cache or no such picture.
bool paintLarge(QPainter &p, const std::string &name, QSize size, qreal ratio, QPointF at);

// One widget's rendered copy of its picture, redrawn only when the name or size changes.
class CachedPicture
{
public:
    // Paints the picture fitted into box; false when the picture does not exist.
    bool paint(QPainter &p, const std::string &name, const QRectF &box);

private:
    std::string name_;
    QSize size_;
    qreal ratio_ = 0;
    QPixmap pixmap_;
    bool missing_ = false;
};

} // namespace nb::ui
