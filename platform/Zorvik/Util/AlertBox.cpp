// SPDX-License-Identifier: MIT
#include "Zorvik/Util/AlertBox.h"

#include <QtDebug>

#include <utility>

namespace Zorvik::Util {
namespace {

std::shared_ptr<IAlertBackend>& Backend()
{
    static std::shared_ptr<IAlertBackend> backend;
    return backend;
}

} // namespace

IAlertBackend::~IAlertBackend() = default;

AlertBox::AlertBox(Level levelValue, const QString& titleText, const QString& bodyText,
                   QMessageBox::StandardButtons buttonSet, QWidget* parentWidget,
                   Qt::WindowFlags windowFlags)
    : level(levelValue), title(titleText), text(bodyText), buttons(buttonSet), parent(parentWidget),
      flags(windowFlags)
{
}

QMessageBox::StandardButton AlertBox::Exec()
{
    if (const auto backend = Backend())
        return backend->Exec(*this);
    qWarning("%s", qUtf8Printable(text));
    return QMessageBox::NoButton;
}

std::shared_ptr<IAlertBackend> AlertBox::SetBackend(std::shared_ptr<IAlertBackend> backend)
{
    return std::exchange(Backend(), std::move(backend));
}

} // namespace Zorvik::Util
