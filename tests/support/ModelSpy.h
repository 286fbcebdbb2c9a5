// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <string>

class QAbstractItemModel;
class QModelIndex;

namespace LumetraTest {

class CallLog;

/// Records every signal that a model can send, about-to and done alike, in order with the other
/// calls of a test: "model.dataChanged(0/1, 0/1, [258])", "model.rowsRemoved(1, 0..0)". Checks that
/// each done follows its about-to, and that removing and inserting change the row count by as much
/// as announced; a breach fails the running test.
class ModelSpy : public QObject
{
public:
    ModelSpy(CallLog& log, QAbstractItemModel& model);
    ~ModelSpy() override;

private:
    void WatchData();
    void WatchRows();
    void WatchColumns();
    void WatchLayout();

    void Begin(const std::string& change, int expectedRows);
    void End(const std::string& change, int rows);
    std::string RangeText(const QModelIndex& parent, int first, int last) const;

    CallLog& m_log;
    QAbstractItemModel& m_model;
    std::string m_pending;
    int m_expectedRows = 0;
};

} // namespace LumetraTest
