// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QObject>
#include <QString>

namespace Workbench {

/// What menus ask of the 3-D view, without knowing it.
class ViewCommands : public QObject
{
    Q_OBJECT

public:
    /// Where the camera looks from. The third axis points up, but for the views along it.
    enum class Direction : int
    {
        Front,
        Back,
        Left,
        Right,
        Top,
        Bottom,
        Isometric
    };

    /// The commands of the process, created by the first call and never destroyed.
    static ViewCommands* instance();

    void fit() { Q_EMIT signal_fit(); }
    void lookFrom(Direction direction) { Q_EMIT signal_lookFrom(direction); }
    /// Saves a picture of the view in the format of the path's suffix; failures are told by a message.
    void saveScreenshot(const QString& path) { Q_EMIT signal_saveScreenshot(path); }

Q_SIGNALS:
    void signal_fit();
    void signal_lookFrom(Workbench::ViewCommands::Direction direction);
    void signal_saveScreenshot(QString path);

private:
    ViewCommands() = default;
    ~ViewCommands() override = default;
};

} // namespace Workbench
