// SPDX-License-Identifier: GPL-2.0-or-later
#include "appearance/Icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

static void RegisterEditorResources()
{
    Q_INIT_RESOURCE(LumetraEditor);
}

namespace LumetraEditor {
namespace {

QByteArray ReadIcon(const QString& name)
{
    RegisterEditorResources();
    QFile file(QStringLiteral(":/lumetra/editor/icons/%1.svg").arg(name));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    Q_ASSERT_X(isOpen, "MakeIcon", qPrintable(name));
    Q_UNUSED(isOpen)
    return file.readAll();
}

/// Draws the lines anew for every size.
class LineIconEngine : public QIconEngine
{
public:
    LineIconEngine(const QByteArray& drawing, const QColor& colour, const QColor& disabledColour)
        : m_drawing(drawing), m_colour(colour), m_disabledColour(disabledColour)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QColor& colour = mode == QIcon::Disabled ? m_disabledColour : m_colour;
        QByteArray drawing = m_drawing;
        QSvgRenderer(drawing.replace("#000000", colour.name().toLatin1())).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new LineIconEngine(*this); }

private:
    QByteArray m_drawing;
    QColor m_colour;
    QColor m_disabledColour;
};

} // namespace

QIcon MakeIcon(const QString& name, LumetraHost::PaletteKind kind)
{
    const auto& colours = LumetraHost::ColoursOf(kind);
    return QIcon(new LineIconEngine(ReadIcon(name), colours.text, colours.disabledText));
}

QIcon MakeProgramIcon()
{
    RegisterEditorResources();
    return QIcon(QStringLiteral(":/lumetra/editor/icons/lumetra-editor.svg"));
}

} // namespace LumetraEditor
