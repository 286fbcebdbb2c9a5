// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <memory>

namespace Zorvik::Lumetra {

class IWorkspaceController;

/// Holds the weak reference of an IWorkspaceUser. It is a virtual base of its own, so that
/// IWorkspaceUser has a virtual table and no data, and can be the primary base of a class that
/// inherits it virtually. A copy starts empty; assignment keeps the own reference.
class ZORVIKPLATFORM_EXPORT WorkspaceReference
{
public:
    WorkspaceReference();
    WorkspaceReference(const WorkspaceReference& other);
    WorkspaceReference& operator=(const WorkspaceReference& other);

protected:
    ~WorkspaceReference();

    std::weak_ptr<IWorkspaceController> m_workspaceController;
};

/// An object that works on the photo of a workspace, without keeping the workspace alive.
class ZORVIKPLATFORM_EXPORT IWorkspaceUser : public virtual WorkspaceReference
{
public:
    /// Replaces the workspace; an empty reference leaves none.
    virtual void SetWorkspaceController(const std::weak_ptr<IWorkspaceController>& controller);

    virtual ~IWorkspaceUser();

    IWorkspaceUser();
    /// A copy has no workspace.
    IWorkspaceUser(const IWorkspaceUser& other);
    /// Keeps the own workspace.
    IWorkspaceUser& operator=(const IWorkspaceUser& other);

    /// The workspace, or null when there is none or it is gone; with `required` that is an
    /// Exception.
    std::shared_ptr<IWorkspaceController> GetWorkspaceController(bool required) const;
    const std::weak_ptr<IWorkspaceController>& GetWorkspaceReference() const;
};

} // namespace Zorvik::Lumetra
