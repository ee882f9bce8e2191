// What the outside gives to a program in a test: memory files and settings, scripted dialogs, a fixed locale.
#pragma once

#include "app/application.h"
#include "support/memory_file_store.h"
#include "support/test_library.h"

namespace lorvane {

struct TestPlatform {
    NumericDistributionLibrary library;
    FixedLocale locale;
    MemoryFileStore files;
    ScriptedDialogs messages;
    MemorySettings settings;

    Platform platform(UnsavedStore* unsaved = nullptr) {
        return {library, locale, files, messages, messages, settings, "/program", unsaved};
    }
};

}  // namespace lorvane
