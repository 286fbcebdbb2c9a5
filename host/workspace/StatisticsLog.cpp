// SPDX-License-Identifier: GPL-2.0-or-later
#include "workspace/StatisticsLog.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>

#include <nlohmann/json.hpp>

namespace LumetraHost {
namespace {

std::string ToLine(const std::string& eventName,
                   const std::map<std::string, std::string>& parameters)
{
    using Json = nlohmann::ordered_json;
    Json line;
    line["time"] = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toStdString();
    line["event"] = eventName;
    line["parameters"] = Json::object();
    for (const auto& [key, value] : parameters)
        line["parameters"][key] = value;
    // Names may hold any bytes; what is not UTF-8 is replaced instead of thrown.
    return line.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

} // namespace

void StatisticsLog::SetPath(const QString& path)
{
    m_path = path;
    m_isReported = false;
}

void StatisticsLog::SendEvent(const std::string& eventName,
                              const std::map<std::string, std::string>& parameters)
{
    if (!m_path.isEmpty())
        Append(QByteArray::fromStdString(ToLine(eventName, parameters)));
}

// Writes each line with one unbuffered call, so that lines of two programs do not mix.
void StatisticsLog::Append(const QByteArray& line)
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return ReportOnce(file.errorString());
    if (file.write(line) != line.size())
        ReportOnce(file.errorString());
}

void StatisticsLog::ReportOnce(const QString& reason)
{
    if (m_isReported)
        return;
    m_isReported = true;
    qWarning("statistics file %s cannot be written: %s", qUtf8Printable(m_path),
             qUtf8Printable(reason));
}

} // namespace LumetraHost
