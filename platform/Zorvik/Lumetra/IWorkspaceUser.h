// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <memory>

namespace Zorvik::Lumetra {

class IWorkspaceController;

/// Holds the weak reference of an IWorkspaceUser. It is a virtual base apart, so that
/// IWorkspaceUser has a virtual table and no data, and can be the primary base of a class that
/// inherits it virtually. A copy starts empty; assignment leaves the assigned object's reference.
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

/// A workspace user works on the photo of a workspace, without keeping the workspace alive.
class ZORVIKPLATFORM_EXPORT IWorkspaceUser : public virtual WorkspaceReference
{
public:
    /// Replaces the workspace; an empty reference leaves none. The host calls it when the workspace
    /// is known, and again when it changes. The workspace is not kept alive.
    virtual void SetWorkspaceController(const std::weak_ptr<IWorkspaceController>& controller);

    virtual ~IWorkspaceUser();

    /// A new object has no workspace.
    IWorkspaceUser();
    /// A copy has no workspace.
    IWorkspaceUser(const IWorkspaceUser& other);
    /// Assignment leaves the assigned object's workspace as it is.
    IWorkspaceUser& operator=(const IWorkspaceUser& other);

    /// Returns the workspace. Where there is none, or it is gone, the result is null, or with
    /// `required` an Exception is thrown. Hold the result only for the operation at hand.
    std::shared_ptr<IWorkspaceController> GetWorkspaceController(bool required) const;
    /// Returns the reference that was set last, for passing it on to other users. It may be empty
    /// or expired.
    const std::weak_ptr<IWorkspaceController>& GetWorkspaceReference() const;
};

} // namespace Zorvik::Lumetra
