// SPDX-License-Identifier: MIT
#include "Zorvik/Lumetra/StyleProvider.h"

#include <utility>

namespace Zorvik::Lumetra {
namespace {

std::shared_ptr<IStyleBackend>& Backend()
{
    static std::shared_ptr<IStyleBackend> backend;
    return backend;
}

} // namespace

IStyleBackend::~IStyleBackend() = default;

QVariant StyleProvider::Option(OptionKey key)
{
    const auto backend = Backend();
    return backend ? backend->Option(key) : QVariant();
}

std::shared_ptr<IStyleBackend> StyleProvider::SetBackend(std::shared_ptr<IStyleBackend> backend)
{
    return std::exchange(Backend(), std::move(backend));
}

std::function<void()> StyleAlertBox(Util::AlertBox& box, const ButtonList& buttons,
                                    QMessageBox::StandardButton defaultButton)
{
    std::function<void()> style = [&box, buttons, defaultButton] {
        if (const auto backend = Backend())
            backend->StyleAlert(box, buttons, defaultButton);
    };
    style();
    return style;
}

} // namespace Zorvik::Lumetra
