// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariant>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace LumetraTest {

/// Notes what it hears on the message bus, through slots that are all private.
class BusReceiver : public QObject
{
    Q_OBJECT

public:
    using Log = std::vector<std::string>;

    BusReceiver(const std::string& name, Log& log) : m_name(name), m_log(log) {}

    /// Called after OnFlag() has noted its call; may delete this object.
    void SetReaction(std::function<void()> reaction) { m_reaction = std::move(reaction); }

private slots:
    void OnNothing() { Note("nothing"); }

    void OnFlag(bool flag)
    {
        Note(flag ? "flag true" : "flag false");
        if (const auto reaction = m_reaction)
            reaction();
    }

    void OnText(const QString& text) { Note("text " + text.toStdString()); }

    void OnTwo(const QString& text, int number)
    {
        Note("two " + text.toStdString() + " " + std::to_string(number));
    }

    void OnAny(const QVariant& value) { Note("any " + std::string(value.typeName())); }

private:
    void Note(const std::string& what) { m_log.push_back(m_name + " " + what); }

    std::string m_name;
    Log& m_log;
    std::function<void()> m_reaction;
};

} // namespace LumetraTest
