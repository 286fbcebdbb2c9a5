// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Util/AlertBox.h"

#include <QStringList>

#include <deque>
#include <memory>

#include <gtest/gtest.h>

namespace LumetraTest {

/// Answers alerts during its life in the order of a script, and keeps what was asked. An alert
/// beyond the script fails the test, and so does an answer that nobody asked for.
class ScriptedAlerts
{
public:
    using Answers = std::deque<QMessageBox::StandardButton>;

    explicit ScriptedAlerts(const Answers& answers) : m_backend(std::make_shared<Backend>())
    {
        m_backend->answers = answers;
        m_earlier = Zorvik::Util::AlertBox::SetBackend(m_backend);
    }

    ~ScriptedAlerts()
    {
        Zorvik::Util::AlertBox::SetBackend(m_earlier);
        EXPECT_TRUE(m_backend->answers.empty()) << "an expected question was not asked";
    }

    ScriptedAlerts(const ScriptedAlerts&) = delete;
    ScriptedAlerts& operator=(const ScriptedAlerts&) = delete;

    const QStringList& GetTexts() const { return m_backend->texts; }
    const QStringList& GetTitles() const { return m_backend->titles; }

private:
    struct Backend : Zorvik::Util::IAlertBackend
    {
        QMessageBox::StandardButton Exec(Zorvik::Util::AlertBox& box) override
        {
            texts.append(box.text);
            titles.append(box.title);
            if (answers.empty()) {
                ADD_FAILURE() << "unexpected question: " << box.text.toStdString();
                return QMessageBox::Cancel;
            }
            const auto answer = answers.front();
            answers.pop_front();
            EXPECT_TRUE(box.buttons.testFlag(answer));
            return answer;
        }

        Answers answers;
        QStringList texts, titles;
    };

    std::shared_ptr<Backend> m_backend;
    std::shared_ptr<Zorvik::Util::IAlertBackend> m_earlier;
};

} // namespace LumetraTest
