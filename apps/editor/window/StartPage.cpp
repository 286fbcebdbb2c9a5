// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/StartPage.h"

#include "appearance/Icons.h"

#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>

namespace LumetraEditor {
namespace {

constexpr int LongestName = 192; // logical pixels, so that the page fits into the smallest window

} // namespace

StartPage::StartPage(QWidget* parent)
    : QWidget(parent), m_picture(new QLabel(this)), m_title(new QLabel(this)),
      m_hint(new QLabel(this)), m_open(new QPushButton(this)), m_recentTitle(new QLabel(this)),
      m_recent(new QWidget(this)), m_recentLayout(new QVBoxLayout(m_recent))
{
    setObjectName(QStringLiteral("startPage"));
    m_title->setObjectName(QStringLiteral("startTitle"));
    m_open->setObjectName(QStringLiteral("startOpen"));
    m_open->setProperty("accent", true);
    m_hint->setProperty("muted", true);
    m_recentTitle->setProperty("muted", true);
    m_recentLayout->setContentsMargins(0, 0, 0, 0);
    m_recentLayout->setSpacing(0);

    auto* const column = new QVBoxLayout(this);
    column->setSpacing(8);
    column->addStretch();
    column->addWidget(m_picture, 0, Qt::AlignHCenter);
    column->addWidget(m_title, 0, Qt::AlignHCenter);
    column->addWidget(m_hint, 0, Qt::AlignHCenter);
    column->addSpacing(8);
    column->addWidget(m_open, 0, Qt::AlignHCenter);
    column->addSpacing(24);
    column->addWidget(m_recentTitle, 0, Qt::AlignHCenter);
    column->addWidget(m_recent, 0, Qt::AlignHCenter);
    column->addStretch();

    connect(m_open, &QPushButton::clicked, this, &StartPage::openRequested);
    SetRecentPhotos({});
    Translate();
}

void StartPage::SetRecentPhotos(const QStringList& paths)
{
    qDeleteAll(m_recent->findChildren<QPushButton*>());
    for (int i = 0; i < std::min<int>(paths.size(), MostShown); ++i) {
        const QString& path = paths[i];
        auto* const button = new QPushButton(m_recent);
        button->setObjectName(QStringLiteral("recentPhoto%1").arg(i));
        button->setProperty("link", true);
        QString name =
            fontMetrics().elidedText(QFileInfo(path).fileName(), Qt::ElideMiddle, LongestName);
        button->setText(name.replace(QLatin1Char('&'), QStringLiteral("&&")));
        button->setToolTip(path);
        button->setAccessibleDescription(path);
        connect(button, &QPushButton::clicked, this, [this, path] { emit photoRequested(path); });
        m_recentLayout->addWidget(button);
    }
    m_recentTitle->setVisible(!paths.isEmpty());
    m_recent->setVisible(!paths.isEmpty());
}

void StartPage::SetIcons(LumetraHost::PaletteKind kind)
{
    m_picture->setPixmap(MakeIcon(QStringLiteral("photo"), kind).pixmap(48, 48));
}

void StartPage::Translate()
{
    m_title->setText(tr("Open a photo"));
    m_hint->setText(tr("Drop it here, or choose a file."));
    m_open->setText(tr("Open…"));
    m_recentTitle->setText(tr("Opened lately"));
}

void StartPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Translate();
}

} // namespace LumetraEditor
