// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/CustomToolBox.h"
#include "widgets/CustomToolBoxButton.h"

#include <QLabel>
#include <QPointer>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

namespace LumetraTest {

using Zorvik::Lumetra::LumetraPresets::CustomToolBox;
using Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton;

/// A tool box that also logs its hooks.
class HookedToolBox : public CustomToolBox
{
public:
    QStringList hooks;

protected:
    void itemInserted(int index) override { hooks += QStringLiteral("inserted %1").arg(index); }
    void itemRemoved(int index) override { hooks += QStringLiteral("removed %1").arg(index); }
};

/// A tool box whose signals are logged as text and whose pages are printed as text.
class ToolBoxFixture : public testing::Test
{
protected:
    ToolBoxFixture()
    {
        QObject::connect(m_box.get(), &CustomToolBox::currentChanged, m_box.get(),
                         [this](int index) { m_log += QStringLiteral("current %1").arg(index); });
        QObject::connect(m_box.get(), &CustomToolBox::expandedChanged, m_box.get(),
                         [this](int index, bool isOpen) {
                             m_log +=
                                 QStringLiteral("expanded %1 %2")
                                     .arg(index)
                                     .arg(isOpen ? QStringLiteral("open") : QStringLiteral("shut"));
                         });
    }

    /// One page for each letter, which is its text.
    void AddPages(const char* letters)
    {
        for (const char* letter = letters; *letter; ++letter)
            m_box->addItem(new QLabel(QString(QLatin1Char(*letter))),
                           QString(QLatin1Char(*letter)));
    }

    /// The log of the signals since the last call.
    std::string TakeLog()
    {
        const std::string log = m_log.join(QStringLiteral(", ")).toStdString();
        m_log.clear();
        return log;
    }

    /// Every page's text, '+' when open, '-' when shut, '*' when current: "A+ B-*". Fails when
    /// header and page disagree.
    std::string Pages() const
    {
        QStringList pages;
        for (int i = 0; i < m_box->count(); ++i) {
            const bool isOpen = m_box->widget(i)->isVisibleTo(m_box.get());
            EXPECT_EQ(isOpen, Header(i)->isChecked()) << "page " << i;
            EXPECT_EQ(isOpen, Header(i)->isSelected()) << "page " << i;
            const QString current = i == m_box->currentIndex() ? QStringLiteral("*") : QString();
            pages += m_box->itemText(i) + QLatin1Char(isOpen ? '+' : '-') + current;
        }
        return pages.join(QLatin1Char(' ')).toStdString();
    }

    /// Header buttons are known by their texts, which the tests keep unique.
    CustomToolBoxButton* Header(int index) const
    {
        const auto buttons =
            m_box->findChildren<CustomToolBoxButton*>(QStringLiteral("qt_toolbox_toolboxbutton"));
        for (auto* button : buttons) {
            if (button->text() == m_box->itemText(index))
                return button;
        }
        return nullptr;
    }

    std::unique_ptr<HookedToolBox> m_box = std::make_unique<HookedToolBox>();

private:
    QStringList m_log;
};

} // namespace LumetraTest
