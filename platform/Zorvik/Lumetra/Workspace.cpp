// SPDX-License-Identifier: MIT
#include "Zorvik/Exception.h"
#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Lumetra/IWorkspaceUser.h"

#include <boost/current_function.hpp>

namespace Zorvik::Lumetra {

IResetReceiver::~IResetReceiver() = default;
IPresetRegistry::~IPresetRegistry() = default;
IWorkspaceController::~IWorkspaceController() = default;

WorkspaceReference::WorkspaceReference() = default;

WorkspaceReference::WorkspaceReference(const WorkspaceReference&) {}

WorkspaceReference& WorkspaceReference::operator=(const WorkspaceReference&)
{
    return *this;
}

WorkspaceReference::~WorkspaceReference() = default;

IWorkspaceUser::IWorkspaceUser() = default;

IWorkspaceUser::IWorkspaceUser(const IWorkspaceUser&) : WorkspaceReference() {}

IWorkspaceUser& IWorkspaceUser::operator=(const IWorkspaceUser&)
{
    return *this;
}

IWorkspaceUser::~IWorkspaceUser() = default;

void IWorkspaceUser::SetWorkspaceController(const std::weak_ptr<IWorkspaceController>& controller)
{
    m_workspaceController = controller;
}

std::shared_ptr<IWorkspaceController> IWorkspaceUser::GetWorkspaceController(bool required) const
{
    auto controller = m_workspaceController.lock();
    if (required && !controller)
        throw Exception("expected an open workspace, found none", BOOST_CURRENT_FUNCTION,
                        "Zorvik/Lumetra/IWorkspaceUser", __LINE__);
    return controller;
}

const std::weak_ptr<IWorkspaceController>& IWorkspaceUser::GetWorkspaceReference() const
{
    return m_workspaceController;
}

} // namespace Zorvik::Lumetra
