// SPDX-License-Identifier: GPL-2.0-or-later
#include "contract/WorkspacePartsContract.h"

#include "workspace/WorkspaceController.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace LumetraTest {
namespace {

using Event = std::pair<std::string, std::map<std::string, std::string>>;

Event ReadEvent(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    Event event;
    event.first = object.value(QLatin1String("event")).toString().toStdString();
    const QJsonObject parameters = object.value(QLatin1String("parameters")).toObject();
    for (auto entry = parameters.begin(); entry != parameters.end(); ++entry)
        event.second[entry.key().toStdString()] = entry.value().toString().toStdString();
    return event;
}

/// Reads the events from the file that the host writes.
class HostSubject
{
public:
    HostSubject() { m_workspace->GetStatisticsLog().SetPath(LogPath()); }

    std::shared_ptr<LumetraHost::WorkspaceController> GetWorkspace() { return m_workspace; }

    std::vector<std::pair<std::string, std::string>> GetPresets() const
    {
        return m_workspace->GetPresets().GetPresets();
    }

    std::vector<Event> GetEvents() const
    {
        QFile file(LogPath());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        std::vector<Event> events;
        while (!file.atEnd())
            events.push_back(ReadEvent(file.readLine()));
        return events;
    }

private:
    QString LogPath() const { return m_folder.filePath(QStringLiteral("events.jsonl")); }

    QTemporaryDir m_folder;
    std::shared_ptr<LumetraHost::WorkspaceController> m_workspace =
        std::make_shared<LumetraHost::WorkspaceController>();
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Host, WorkspacePartsContract, HostSubject);

} // namespace LumetraTest
