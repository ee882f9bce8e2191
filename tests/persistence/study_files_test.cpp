// Saving, opening and starting, with everything that can go wrong outside.
#include <gtest/gtest.h>

#include "persistence/study_file.h"
#include "support/test_platform.h"

namespace lorvane {
namespace {

// A place for the unsaved study of one earlier run.
struct MemoryUnsaved final : UnsavedStore {
    std::optional<UnsavedStudy> kept;
    int drops = 0;
    bool left = false;

    void keep(const UnsavedStudy& study) override { kept = study; }
    void drop() override {
        kept.reset();
        ++drops;
    }
    std::optional<LeftBehind> takeLeftBehind() override {
        return kept && !left ? std::optional(LeftBehind{*kept, "/pictures/1", "/pictures/1.damaged", ""})
                             : std::nullopt;
    }
    void leave() override { left = true; }
    void setAside() override { left = true; }
};

// A store that cannot be read or written.
struct BrokenSettings final : SettingsStore {
    std::string GetSetting(const std::string&, const std::string&, const std::string&,
                           const std::string& fallback) const override {
        return fallback;
    }
    void SaveSetting(const std::string&, const std::string&, const std::string&,
                     const std::string&) override {}
};

class StudyFilesTest : public ::testing::Test {
protected:
    std::string text(const std::string& name) const { return std::get<std::string>(*app.names().read(name)); }
    double number(const std::string& name) const { return std::get<double>(*app.names().read(name)); }
    void setD(double d) { app.set(std::vector<Assignment>{{"txtd", d}}); }
    bool isDirty() const { return app.session().isDirty(); }
    std::string recent(std::size_t row) const { return app.names().grid("flexfiles")->rows[row][0]; }
    std::string onlyMessage() {
        const auto shown = outside.messages.take();
        const auto* message =
            shown.size() == 1 ? std::get_if<ScriptedDialogs::ShownMessage>(&shown[0]) : nullptr;
        return message == nullptr ? "not one message" : message->message.title + "|" + message->message.text;
    }

    TestPlatform outside;
    MemoryUnsaved unsaved;
    Application app{outside.platform(&unsaved)};
};

TEST_F(StudyFilesTest, AFailedSaveKeepsNameFileAndChange) {
    app.save("/kept");
    const std::string old = outside.files.files["/kept"];
    setD(0.7);
    outside.files.full = true;
    for (const char* tool : {"Save", "SaveAs"}) {
        outside.messages.queueFile("/other");
        app.tool(tool);
        std::string shown;
        for (const auto& dialog : outside.messages.take()) {
            if (const auto* message = std::get_if<ScriptedDialogs::ShownMessage>(&dialog))
                shown += message->message.title + "|" + message->message.text;
        }
        EXPECT_EQ(shown, "File was not saved                       |File could not be saved. It is probably "
                         "being used by another program                ");
        EXPECT_EQ(text("CurrentFile"), "/kept");
        EXPECT_TRUE(isDirty());
        EXPECT_NE(text("pnlStatus.Caption").find("cannot be written"), std::string::npos);
        EXPECT_EQ(outside.files.files["/kept"], old);
        EXPECT_EQ(recent(0), "/kept");
    }
    outside.files.full = false;
    app.tool("Save");
    EXPECT_EQ(onlyMessage(), "File saved|The file /kept has been saved. ");
    EXPECT_EQ(text("pnlStatus.Caption"), "Saved in kept.");
    EXPECT_FALSE(isDirty());
}

TEST_F(StudyFilesTest, AProtectedFileIsToldAndAnotherNameOffered) {
    app.save("/kept");
    setD(0.7);
    outside.files.protectedPath = "/kept";
    outside.messages.queue(Answer::Yes);
    outside.messages.queueFile("/other");
    app.tool("Save");
    const auto shown = outside.messages.take();
    EXPECT_EQ(std::get<ScriptedDialogs::ShownMessage>(shown.at(0)).message.text,
              "The file \"/kept\" is write-protected.");
    EXPECT_EQ(text("CurrentFile"), "/other");
    EXPECT_FALSE(isDirty());
}

TEST_F(StudyFilesTest, TheTemplateGivesTheStudyOfTheStart) {
    const auto picture = [&] {
        app.save("/picture");
        return outside.files.files["/picture"];
    };
    app.tool("Clear");
    const std::string withoutTemplate = picture();
    std::string other = withoutTemplate;
    other.replace(other.find("Currency,$,1"), 12, "Currency,kr,2");
    outside.files.files["/program/Template Means.Lorvane"] = other;
    setD(0.9);
    app.tool("Add scenario");
    app.save("/work");
    app.tool("Clear");
    EXPECT_EQ(text("CurrentFile"), "");
    EXPECT_FALSE(isDirty());
    EXPECT_TRUE(app.scenarios().empty());
    EXPECT_EQ(picture(), withoutTemplate) << "the currency is the one of this system";
}

TEST_F(StudyFilesTest, TheRecentFilesKeepElevenOnceEach) {
    for (int i = 1; i <= 12; ++i)
        app.save("/studies/" + std::to_string(i));
    app.open("/studies/7");
    app.save("/STUDIES/ÖL");
    app.save("/studies/öl");
    EXPECT_EQ(recent(0), "/studies/öl");
    EXPECT_EQ(recent(1), "/studies/7");
    EXPECT_EQ(recent(2), "/studies/12");
    EXPECT_EQ(recent(10), "/studies/3");
    EXPECT_EQ(outside.settings.GetSetting("Lorvane", "Recent", " 10", ""), "/studies/3");
    Application next(outside.platform());
    next.start("");
    EXPECT_EQ(next.startScreen().flex().rows.size(), 13u);
    EXPECT_EQ(next.startScreen().flex().selected, std::vector<std::size_t>{2});
    outside.files.files.erase("/studies/7");
    EXPECT_TRUE(next.startScreen().isMissing(3));
    EXPECT_FALSE(next.startScreen().isMissing(2));
}

TEST_F(StudyFilesTest, WithoutSettingsThereAreNoRecentFiles) {
    BrokenSettings broken;
    Application lonely({outside.library, outside.locale, outside.files, outside.messages, outside.messages,
                        broken, "/program"});
    lonely.start("");
    lonely.save("/study");
    lonely.open("/study");
    EXPECT_EQ(lonely.startScreen().flex().rows.size(), 2u);
    EXPECT_FALSE(lonely.unsavedStudy().has_value());
}

TEST_F(StudyFilesTest, AStartOpensTheFileOrTheStartScreen) {
    setD(0.3);
    app.save("/study");
    Application withFile(outside.platform());
    withFile.start("/study");
    EXPECT_EQ(withFile.design().study().txtd, 0.3);
    EXPECT_EQ(withFile.design().windows().state(WindowId::frmStart), WindowStates::notLoaded);
    Application without(outside.platform());
    without.start("");
    EXPECT_EQ(without.design().windows().state(WindowId::frmStart), WindowStates::open);
    EXPECT_FALSE(without.session().isDirty());
    Application wrong(outside.platform());
    wrong.start("/none");
    EXPECT_NE(wrong.design().screen().pnlStatus.Caption, "");
    EXPECT_TRUE(outside.messages.take().empty());
}

TEST_F(StudyFilesTest, UnsavedWorkIsOfferedOnceAfterACrash) {
    EXPECT_FALSE(app.unsavedStudy().has_value()) << "nothing has been done yet";
    setD(0.3);
    app.save("/study");
    app.open("/study");
    EXPECT_FALSE(app.unsavedStudy().has_value()) << "an opened study is on the disk";
    setD(0.4);
    app.tool("Add scenario");
    unsaved.kept = app.unsavedStudy();
    ASSERT_TRUE(unsaved.kept.has_value());
    const std::string file = outside.files.files["/study"];

    Application again(outside.platform(&unsaved));
    outside.messages.queue(Answer::Yes);
    again.start("");
    EXPECT_EQ(again.design().study().txtd, 0.4);
    EXPECT_EQ(again.scenarios().size(), 1u);
    EXPECT_EQ(again.session().currentFile(), "/study");
    EXPECT_TRUE(again.unsavedStudy() == unsaved.kept) << "it is still unsaved";
    EXPECT_EQ(again.design().windows().state(WindowId::frmStart), WindowStates::notLoaded);
    EXPECT_EQ(outside.files.files["/study"], file);
    EXPECT_EQ(unsaved.drops, 0);

    EXPECT_EQ(again.broughtBack(), BroughtBack::onScreen);
    again.tool("Save");
    EXPECT_EQ(again.broughtBack(), BroughtBack::none);
    app.open("/study");

    // Enter at the next question keeps what was brought back; letting it go keeps the picture.
    for (const bool letGo : {false, true}) {
        Application third(outside.platform(&unsaved));
        outside.messages.queue(Answer::Yes);
        if (letGo)
            outside.messages.queue(Answer::OK);
        outside.messages.take();
        third.start("/study");
        EXPECT_EQ(third.broughtBack(), letGo ? BroughtBack::letGo : BroughtBack::onScreen);
        const auto shown = outside.messages.take();
        EXPECT_EQ(std::get<ScriptedDialogs::ShownMessage>(shown.at(1)).message.preset, Answer::Cancel);
    }
    EXPECT_EQ(unsaved.drops, 0);

    Application later(outside.platform(&unsaved));
    later.start("");
    EXPECT_TRUE(unsaved.left) << "nobody answered";
    unsaved.left = false;
    outside.messages.queue(Answer::No);
    Application refused(outside.platform(&unsaved));
    refused.start("");
    EXPECT_EQ(unsaved.drops, 1);
    EXPECT_EQ(refused.design().windows().state(WindowId::frmStart), WindowStates::open);
}

TEST_F(StudyFilesTest, ADamagedPictureIsKeptUnderANameThatIsTold) {
    unsaved.kept = UnsavedStudy{"/study", "half a pic", 0};
    outside.messages.queue(Answer::Yes);
    app.start("");
    const auto shown = outside.messages.take();
    const MessageBox& question = std::get<ScriptedDialogs::ShownMessage>(shown.at(0)).message;
    EXPECT_EQ(question.preset, Answer::Cancel);
    EXPECT_NE(question.text.find("stays as /pictures/1.damaged"), std::string::npos);
    EXPECT_NE(question.text.find("\"/pictures/1\" is not a study file"), std::string::npos);
    EXPECT_NE(text("pnlStatus.Caption").find("/pictures/1.damaged"), std::string::npos);
    EXPECT_TRUE(unsaved.left && unsaved.kept);
    EXPECT_EQ(unsaved.drops, 0);
}

// What another program wrote since the study was read is not written over without a question.
TEST_F(StudyFilesTest, AFileThatAnotherProgramChangedIsAskedAbout) {
    app.save("/study");
    const std::string foreign = outside.files.files["/study"] + "\r\n";
    outside.files.files["/study"] = foreign;
    setD(0.6);
    EXPECT_THROW(app.save("/study"), FileProblem);
    app.tool("Save");
    EXPECT_EQ(outside.files.files["/study"], foreign) << "nobody answered";
    outside.messages.queue(Answer::No);
    outside.messages.queueFile("/mine");
    app.tool("Save");
    EXPECT_EQ(text("CurrentFile"), "/mine");
    EXPECT_EQ(outside.files.files["/study"], foreign);
    outside.files.files["/mine"] = foreign;
    outside.messages.queue(Answer::Yes);
    app.tool("Save");
    EXPECT_NE(outside.files.files["/mine"], foreign);
    EXPECT_FALSE(isDirty());
    outside.messages.take();
    app.tool("Save");
    EXPECT_EQ(onlyMessage(), "File saved|The file /mine has been saved. ");
    outside.files.files.erase("/mine");
    app.save("/mine");
}

// The panel of the smallest effect lends the screen its answer.
TEST_F(StudyFilesTest, ALentEffectReachesNeitherFileNorTheNextStudy) {
    app.load(std::vector<Assignment>{{"txtd", 0.3}, {"txtNT(2)", 10.0}, {"txtNC(2)", 10.0}});
    app.save("/other");
    setD(0.2);
    app.tool("gfrmMDES");
    app.click("frmMDES.cmdComputeMDES");
    ASSERT_NE(app.design().study().txtd, 0.2);
    app.tool("Add scenario");
    app.save("/own");
    app.open("/other");
    app.click("frmMDES.cmdMDESClose");
    EXPECT_EQ(app.design().study().txtd, 0.3);
    app.open("/own");
    EXPECT_EQ(app.design().study().txtd, 0.2);
    app.restoreScenario("Scenario 0001");
    EXPECT_EQ(app.design().study().txtd, 0.2);
}

TEST_F(StudyFilesTest, WhatADialogTakesCanBeSavedAndOpened) {
    app.tool("Add scenario");
    app.click("frmScenarios.cmdScenarios(3)");
    const auto typing = [&](const std::string& name) { app.type("frmScenariosName.txtScenariosName", name); };
    EXPECT_THROW(typing(std::string(ScenarioGrid::longestCell + 1, 'x')), UseProblem);
    EXPECT_THROW(typing("\xFF"), UseProblem);
    EXPECT_THROW(typing(std::string(1, '\0')), UseProblem);
    EXPECT_THROW(app.load(std::vector<Assignment>{{"txtName(1)", std::string("a\0b", 3)}}), UseProblem);
    EXPECT_THROW(app.load(std::vector<Assignment>{{"MaxCost", 0.0}}), UseProblem);
    for (const std::string& name :
         {std::string(ScenarioGrid::longestCell, 'x'), std::string("=1+1,\"\r\n\"")}) {
        app.click("frmScenarios.cmdScenarios(3)");
        typing(name);
        app.click("frmScenariosName.cmdScenarioNameOk(0)");
        app.save("/named");
        app.open("/named");
        EXPECT_EQ(app.scenarios()[0].name, name);
    }
}

}  // namespace
}  // namespace lorvane
