// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>

class QLineEdit;

namespace LumetraPlugin {

/// Says beside the field of a look's name how many characters the name has and how many it may
/// have; to screen readers as the field's description. Where the field takes no more of a text, or
/// the name is too long, it says so in words.
class NameCounter : public QLabel
{
    Q_OBJECT

public:
    /// `field` lives as long as this label.
    NameCounter(QLineEdit& field, int most, QWidget* parent = nullptr);

    /// True for a name of more characters than it may have; spaces around it do not count.
    bool IsTooLong() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void Follow();
    void NoteCut();
    void ShowCount();

    QLineEdit& m_field;
    int m_most;
    bool m_isCut = false; ///< the field has left out the end of a text
};

} // namespace LumetraPlugin
