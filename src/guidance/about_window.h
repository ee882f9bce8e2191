// What the program tells of itself: version, licence, libraries, how to cite it. The facts are one table.
#pragma once

#include <string>
#include <vector>

#include "platform/clipboard.h"
#include "platform/program_facts.h"
#include "platform/shell.h"
#include "screen/design.h"
#include "screen/part.h"

namespace lorvane {

/// One fact under its heading. A fact to copy has a button for it.
struct AboutFact {
    std::string name;  ///< of its control, "pnlCite"
    Panel heading;
    Panel text;
};

class AboutWindow final : public Part {
public:
    /// The licence is a file of the program's folder. Without a shell nothing opens it.
    AboutWindow(Design& design, const ProgramFacts& facts, std::string licenceFile, Clipboard& clipboard,
                Shell* shell);

    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;

    void open() { isOpen_ = true; }
    bool isOpen() const noexcept { return isOpen_; }

    const Panel& pnlTitle() const noexcept { return pnlTitle_; }  ///< of the window
    const Panel& pnlName() const noexcept { return pnlName_; }
    const Panel& pnlSense() const noexcept { return pnlSense_; }
    const Panel& pnlVersion() const noexcept { return pnlVersion_; }

    /// Licence, libraries, fonts, how to cite.
    const std::vector<AboutFact>& facts() const noexcept { return facts_; }

    const Button& cmdLicence() const noexcept { return cmdLicence_; }
    const Button& cmdCite() const noexcept { return cmdCite_; }
    const Button& cmdCopyAll() const noexcept { return cmdCopyAll_; }
    const Button& cmdClose() const noexcept { return cmdClose_; }

private:
    void openLicence();
    std::string allWords() const;

    Design& design_;
    std::string licenceFile_;
    Clipboard& clipboard_;
    Shell* shell_;
    bool isOpen_ = false;
    Panel pnlTitle_{"About Lorvane"};
    Panel pnlName_{"Lorvane"};
    Panel pnlSense_{"Planning of cluster-randomized trials"};
    Panel pnlVersion_;
    std::vector<AboutFact> facts_;
    Button cmdLicence_{"Read the licence"};
    Button cmdCite_{"Copy how to cite"};
    Button cmdCopyAll_{"Copy all"};
    Button cmdClose_{"Close"};
};

}  // namespace lorvane
