// Build helper: renders an SVG icon to square PNGs of the given sizes, so the package carries
// the icon at every size a desktop asks for without any image tool at build time.
//   numbrook-render-icon ICON.svg OUTPUT-FOLDER SIZE...
// writes OUTPUT-FOLDER/<size>/<name of ICON>.png for each size.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char *argv[])
{
    if (argc < 4) {
        std::fprintf(stderr, "usage: %s ICON.svg OUTPUT-FOLDER SIZE...\n", argv[0]);
        return 2;
    }
    QSvgRenderer svg{QString::fromLocal8Bit(argv[1])};
    if (!svg.isValid()) {
        std::fprintf(stderr, "cannot read %s\n", argv[1]);
        return 1;
    }
    const QString name = QFileInfo(QString::fromLocal8Bit(argv[1])).completeBaseName();
    const QDir out(QString::fromLocal8Bit(argv[2]));
    for (int i = 3; i < argc; ++i) {
        const int size = QString::fromLocal8Bit(argv[i]).toInt();
        if (size <= 0 || size > 4096) {
            std::fprintf(stderr, "not a size: %s\n", argv[i]);
            return 2;
        }
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        svg.render(&p);
        p.end();
        const QString folder = QString::number(size);
        const QString file = out.filePath(folder + "/" + name + ".png");
        if (!out.mkpath(folder) || !image.save(file)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
