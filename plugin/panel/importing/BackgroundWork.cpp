// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/importing/BackgroundWork.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>

#include <atomic>
#include <exception>
#include <memory>
#include <mutex>

namespace LumetraPlugin {
namespace {

constexpr int PatienceInMs = 300; // before the dialog opens
constexpr int RefreshInMs = 50;
constexpr int DialogWidth = 420;

/// How far the work is. The two threads share it.
class State
{
public:
    bool Tell(int done, int total, const QString& name)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_done = done;
        m_total = total;
        m_name = name;
        return !isEnded;
    }
    void Show(QProgressBar& bar, QLabel& label)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        bar.setRange(0, m_total);
        bar.setValue(m_done);
        label.setText(label.fontMetrics().elidedText(m_name, Qt::ElideMiddle, label.width()));
    }

    std::atomic<bool> isEnded{false};
    std::exception_ptr error; // read when the thread has ended

private:
    std::mutex m_mutex;
    int m_done = 0;
    int m_total = 0;
    QString m_name;
};

void RunWork(const BackgroundWork::Work& work, State& state)
{
    try {
        work([&state](int done, int total, const QString& name) {
            return state.Tell(done, total, name);
        });
    } catch (...) {
        state.error = std::current_exception();
    }
}

/// Waits without letting the user start anything else, for most work is done at once.
void WaitAWhile(QThread& thread)
{
    QEventLoop loop;
    QObject::connect(&thread, &QThread::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(PatienceInMs, &loop, &QEventLoop::quit);
    if (thread.isRunning())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

bool BackgroundWork::Run(const Work& work)
{
    State state;
    const std::unique_ptr<QThread> thread(QThread::create([&] { RunWork(work, state); }));
    QDialog dialog(&m_window);
    dialog.setObjectName(QStringLiteral("workProgress"));
    dialog.setWindowTitle(m_texts.title);
    dialog.setModal(true);
    auto* const column = new QVBoxLayout(&dialog);
    column->setContentsMargins(24, 24, 24, 16);
    column->setSpacing(16);
    auto* const label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(DialogWidth);
    auto* const bar = new QProgressBar;
    bar->setAccessibleName(m_texts.parts);
    bar->setTextVisible(false); // the bar is thinner than a text
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    column->addWidget(label);
    column->addWidget(bar);
    column->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    QObject::connect(&dialog, &QDialog::rejected, &dialog, [&state] { state.isEnded = true; });
    QObject::connect(thread.get(), &QThread::finished, &dialog, &QDialog::accept);
    QTimer refresh;
    QObject::connect(&refresh, &QTimer::timeout, &dialog,
                     [&, label, bar] { state.Show(*bar, *label); });

    thread->start();
    WaitAWhile(*thread);
    if (thread->isRunning()) {
        state.Show(*bar, *label);
        refresh.start(RefreshInMs);
        dialog.exec();
    }
    thread->wait();
    if (state.error)
        std::rethrow_exception(state.error);
    return !state.isEnded;
}

} // namespace LumetraPlugin
