// What each action of the user on the main window does: the map, and the wiring of those commands
// that lead to other windows or out of the program.
//
//   Clock, status          Tens, Ones, Image1, Tenths, Hundredths TimeDisplay::toggle_time_method
//   Position               Slider1                                   PositionSlider
//   Play, pause, stop      MMControl1                                TransportKeys
//   Reset                  SSCommand1                                ResetButton
//   "Next"                 Command9                                  PlayOrder::Command9_Click
//   "Reset List"           Command6 (also "Cancel Dly")              PlayOrder::Command6_Click
//   "Next" of the queue    Command19                                 PlayOrder::Command19_Click
//   Song list              File1                                     SongList::File1_Click
//   Folders, drives        Dir1, Drive1                              SongList
//   "Find:"                Label8, text2                             FindBox
//   "Song Information..."  Command3                                  InformationWindow
//   "Options..."           Command1                                  here, OptionsWindow::show
//   "Quit"                 Command2                                  here, then ShutDown
//   "Help"                 Command10                                 here, Help::show_contents
//   "Hide"                 Command11                                 here, Command11_Click
//   "Web Links"            Command12                                 here, WebLinks::show
//   "Tips..."              Command21                                 QuickTips
//   Volume                 Slider2, Slider3, Check1, Command14       VolumeControl
//   Presets                preset(1) to preset(12), Command8,
//                          Command15, Command17                      Presets
//   "View"                 Command16                                 ViewPresets
//   "Rename"               Command18, and F2                         FileCommands::renamefile
//   "Delete"               Command4                                  FileCommands
//   "Move"                 Command5                                  MoveFile
//   "Folder", "Explore"    Command22, Command23, Command24           FileCommands
//   "Note..."              Command7                                  SongNotes
//   Playlists              Command13, Command20                      PlaylistEditor, OpenPlaylist
//   Close box              the window's unload                       ShutDown
//   Size, activation       the window's own events                   StartUp
#pragma once

#include "engine/stage.h"
#include "ui/main_window_layout.h"

#include <functional>

namespace zephyne {

// Where the commands lead. One that is empty leaves its key disabled.
struct CommandTargets {
    std::function<void()> show_options;
    std::function<void()> show_help;
    std::function<void()> show_web_links;
    std::function<void()> renamefile;  // starts renaming the current file
};

class MainWindowCommands {
  public:
    MainWindowCommands(Stage& stage, MainWindowLayout& layout, CommandTargets targets);

  private:
    void Command11_Click();
    void Form_KeyUp(int key);

    Stage& stage_;
    MainWindowLayout& layout_;
    CommandTargets targets_;
};

}  // namespace zephyne
