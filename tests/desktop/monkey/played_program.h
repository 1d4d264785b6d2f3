#pragma once

#include "driver.h"
#include "monkey.h"
#include "played_stage.h"
#include "view/file_disk.h"

namespace orvanta::monkey {

/// One run of the program in its window, played by a monkey, and beside it the same program without
/// a window, played by the lines that the recorder makes of that.
class PlayedProgram {
public:
    PlayedProgram(Sandbox& files, Monkey& monkey);
    ~PlayedProgram();

    /// Empty if both programs start alike.
    std::string start();
    /// One act of the monkey, with all that it brings up. Empty if both programs are alike behind
    /// it and all that is claimed holds.
    std::string act(bool inStep);
    /// Empty if the files are alike.
    std::string differingFile() const;

    bool hasEnded() const { return m_driver.hasEnded(); }
    const Recorder::Lines& lines() const { return m_lines; }
    /// What is no analysis was opened as one: its lists without the companions, and that is right.
    bool hasOpenedNoAnalysis() const { return m_hasOpenedNoAnalysis; }
    const FrmMain& form() { return m_driver.program().frmMain; }

private:
    std::string differsFromItsLines();
    std::vector<std::string> copies();
    void noteWhatIsOpened(const Json& line);
    std::string brokenClaim(bool inStep);

    Sandbox& m_files;
    Monkey& m_monkey;
    const driver::Folders m_folders, m_twinFolders;
    FileDisk m_disk;
    PlayedStage m_stage;
    std::unique_ptr<Recorder> m_recorder;
    driver::Driver m_driver;
    std::unique_ptr<driver::Stage> m_twinStage = driver::makeModelStage();
    driver::Driver m_twin;
    Recorder::Lines m_lines;
    std::string m_pressed;
    bool m_hasOpenedNoAnalysis = false;
};

}  // namespace orvanta::monkey
