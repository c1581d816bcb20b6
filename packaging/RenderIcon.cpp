// SPDX-License-Identifier: GPL-3.0-or-later
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <cstdio>

/// RenderIcon SVG SIZE PNG: draws a picture at the size of an icon, in pixels.
int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("RenderIcon SVG SIZE PNG\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    const int size = QString::fromLocal8Bit(argv[2]).toInt();
    if (!drawing.isValid() || size <= 0)
        return 1;
    QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    painter.end();
    return icon.save(QString::fromLocal8Bit(argv[3]), "PNG") ? 0 : 1;
}
