// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Brassel/ISerializable.h"

#include <string>

namespace Zorvik::Brassel::Config {

/// Everything that a configuration parser fills derives from this class.
class ZORVIKPLATFORM_EXPORT IParserConfigBase
{
public:
    virtual ~IParserConfigBase();
};

/// The host's configuration parser calls these operations of a preset model while it reads a
/// catalogue: the default sliders first, then every group, then the user's stored data. Any pointer
/// may be null and then stands for an empty collection or node. The arguments need not outlive the
/// call. Exceptions of the serializer pass through to the parser.
class ZORVIKPLATFORM_EXPORT IParserConfigGroup : public virtual IParserConfigBase
{
public:
    /// Takes one group of the catalogue: its name in UTF-8, its items in order, and the settings
    /// that hold for all of them. Called once per group.
    virtual void ParseGroup(const std::string& groupName, const ConstCollectionPtr& items,
                            const ConstSerializerPtr& groupSettings) = 0;
    /// Takes the default settings of the whole catalogue, which reach the groups parsed afterwards.
    virtual void ParseAdditionalInfo(const ConstCollectionPtr& collection) = 0;
    /// Takes the data that the user has stored. Called once, after the last group.
    virtual void ParseAdditionalInfo(const ConstSerializerPtr& serializer) = 0;

    ~IParserConfigGroup() override;
};

} // namespace Zorvik::Brassel::Config
