// SPDX-License-Identifier: GPL-2.0-or-later
#include "photos/ContactSheet.h"

#include "console/Text.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

namespace LumetraCli {
namespace {

constexpr int Margin = 16;
constexpr int Gap = 10;
constexpr int LabelHeight = 22;
constexpr int HeadingHeight = 34;
constexpr int LabelPixels = 13;
constexpr int HeadingPixels = 18;
constexpr QRgb Background = qRgb(0x26, 0x27, 0x2b);
constexpr QRgb LabelColour = qRgb(0xd8, 0xd9, 0xdc);
constexpr QRgb GapColour = qRgb(0x8c, 0x8e, 0x94);
constexpr QRgb HeadingColour = qRgb(0xff, 0xff, 0xff);

QFont FontOf(int pixels, bool isBold)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    font.setBold(isBold);
    return font;
}

void DrawText(QPainter& painter, const QRect& area, const QString& text, const QFont& font,
              QRgb colour, int alignment)
{
    painter.setFont(font);
    painter.setPen(QColor(colour));
    const QString fitting = QFontMetrics(font).elidedText(text, Qt::ElideRight, area.width());
    painter.drawText(area, alignment | Qt::AlignVCenter | Qt::TextSingleLine, fitting);
}

/// Draws a frame that stands for a missing picture.
void DrawGap(QPainter& painter, const QRect& area)
{
    painter.setPen(QColor(GapColour));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    DrawText(painter, area, Text::tr("no picture"), FontOf(LabelPixels, false), GapColour,
             Qt::AlignHCenter);
}

} // namespace

ContactSheet::ContactSheet(const QSize& tile, int columns) : m_tile(tile), m_columns(columns) {}

int ContactSheet::GetHeight(const Section& section) const
{
    const int rows = (static_cast<int>(section.tiles.size()) + m_columns - 1) / m_columns;
    return HeadingHeight + rows * (m_tile.height() + LabelHeight + Gap);
}

QSize ContactSheet::GetSize(const std::vector<Section>& sections) const
{
    int height = 2 * Margin;
    for (const Section& section : sections)
        height += GetHeight(section);
    return {2 * Margin + m_columns * (m_tile.width() + Gap) - Gap, height};
}

void ContactSheet::DrawTile(QPainter& painter, const Tile& tile, const QPoint& corner) const
{
    QImage picture = tile.picture;
    if (picture.width() > m_tile.width() || picture.height() > m_tile.height())
        picture = picture.scaled(m_tile, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    const QPoint offset((m_tile.width() - picture.width()) / 2,
                        (m_tile.height() - picture.height()) / 2);
    painter.drawImage(corner + offset, picture);
    if (picture.isNull())
        DrawGap(painter, QRect(corner, m_tile));
    const QRect label(corner + QPoint(0, m_tile.height()), QSize(m_tile.width(), LabelHeight));
    DrawText(painter, label, tile.label, FontOf(LabelPixels, false), LabelColour, Qt::AlignHCenter);
}

int ContactSheet::DrawSection(QPainter& painter, const Section& section, int top) const
{
    const int width = m_columns * (m_tile.width() + Gap) - Gap;
    DrawText(painter, QRect(Margin, top, width, HeadingHeight), section.heading,
             FontOf(HeadingPixels, true), HeadingColour, Qt::AlignLeft);
    const QPoint corner(Margin, top + HeadingHeight);
    for (int i = 0; i < static_cast<int>(section.tiles.size()); ++i)
        DrawTile(painter, section.tiles[static_cast<std::size_t>(i)],
                 corner + QPoint(i % m_columns * (m_tile.width() + Gap),
                                 i / m_columns * (m_tile.height() + LabelHeight + Gap)));
    return top + GetHeight(section);
}

QImage ContactSheet::Draw(const std::vector<Section>& sections) const
{
    QImage sheet(GetSize(sections), QImage::Format_RGB32);
    if (sheet.isNull())
        return sheet;
    sheet.fill(Background);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::TextAntialiasing);
    int top = Margin;
    for (const Section& section : sections)
        top = DrawSection(painter, section, top);
    return sheet;
}

} // namespace LumetraCli
