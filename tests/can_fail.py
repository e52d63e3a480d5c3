#!/usr/bin/env python3
"""Each file of tests can fail: with one fault in what it judges, a test of it turns red. Works on a copy of the tree.

    can_fail.py [REGEX]

REGEX chooses among the tests of the table by their names; each fault needs a build of its own."""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[1]

# The test, the file of what it judges, and the fault: a text that the file has once, and what takes its place.
FAULTS = [
    ("AdvancedPortControl.TheUsersChoiceIsStoredByOk", "src/board_page/uart_modes.cpp",
     "HasAny(possible, CapCS) && acs", "HasAny(possible, CapCS) && !acs"),
    ("AdvancedPortSettings.FifoSettingsGoFromTheStoreToTheControlsAndBack", "src/uart_page/advanced_port_settings.cpp",
     "sliders.RxFifoPos = RxFifoStageCount;", "sliders.RxFifoPos = 1;"),
    ("BoardFifo.FifoSettingsGoFromTheStoreToTheControlsAndBack", "src/board_page/fifo_settings.cpp",
     "PutTransmitSlider(hDlg, sliders->TxFifoPosTranslate);", "PutTransmitSlider(hDlg, 1);"),
    ("BoardPage.ChannelsAreListedByNumberWithTheirResources", "src/board_page/resource_list.cpp",
     "range.start + range.length)", "range.start + range.length - 1)"),
    ("CheckReport.HoldsOnlyWhatWasExpected", "check/facts.cpp", "seen <= most", "seen < most"),
    ("ComPortDatabase.NumbersAreBitsAndTheHighestFreeOneWins", "src/com_numbers/com_port_database.cpp",
     "u32 number = ComNumberMax;", "u32 number = ComNumberMax - 1;"),
    ("ComSortAtRandom.SmallMachines", "src/com_numbers/com_sort.cpp",
     "pairs[j].com < pairs[smallest].com", "pairs[j].com > pairs[smallest].com"),
    ("ComSort.MakesTheExchangesInThisOrderAndChecksOnlyPortsThatMove", "src/com_numbers/com_sort.cpp",
     "IsUart(chl) && chl->SortCurrentCom != chl->SortNewCom", "IsUart(chl)"),
    ("FifoStages.APositionIsAStageAndATriggerLevelTheHighestThatItReaches", "src/device_model/fifo_stages.cpp",
     "trigger < stages", "trigger <= stages"),
    ("Diagnosis.FindsWhatIsWrong", "host/diagnosis/number_rules.cpp", "record.holders.size() > 1", "record.holders.size() > 2"),
    ("DiagnosisTables.PublishedValuesAreThoseThatTheLibraryReads", "host/diagnosis/published_values.cpp",
     "text = 128;", "text = 127;"),
    ("ErrorReporter.EveryCodeHasItsBox", "src/reporting/error_reporter.cpp", "Load string failure.", "Load string fails."),
    ("FaultSweep.TheBoardsPage", "src/com_numbers/com_port_database.cpp", "ComDBClose(database);", ""),
    ("Keyboard.ASharedHotKeyMovesFromOneControlToTheNext", "simulated/dialog_keys.cpp", "around.size() > 1", "around.size() > 2"),
    ("Languages.DialogsHaveTheSameControlsInOrderEachWithItsRoom", "src/resources/languages/1031_german.h",
     "INSTEAD(55, 130, 65, 14)", "INSTEAD(55, 130, 75, 14)"),
    ("MachineFile.ChoosesTheControlSetAndHeedsDeletions", "host/machine_file/machine_file_loading.cpp",
     "ControlSet%03u", "ControlSet%02u"),
    ("PageProviders.EachFailureHasItsBoxAndLeavesNothing", "src/page_parts/page_provider.cpp",
     "DestroyPropertySheetPage(page);", ""),
    ("Patch.IsSilentAboutPlacesThatAreAsTheyWere", "host/machine_file/patch.cpp",
     "ChangedPlace::Database, &Difference::place) != list", "ChangedPlace::Database, &Difference::place) == list"),
    ("Placement.EveryDialogOfEveryLanguageFitsASmallTerminal", "host/screen/placement.cpp",
     "RightOf(*other) + 2", "RightOf(*other)"),
    ("SavedMachine.WritesANewDeviceAndItsInterfaceUnderTheirNames", "host/machine_file/machine_file_saving.cpp",
     "std::ranges::replace(subkey", "std::ranges::replace(name"),
    ("Platform.TellsWhatALibraryMustNotDo", "simulated/process.cpp", 'sim::MisuseOfHandle(__func__, "memory", memory);', ""),
    ("RegistryExport.WritesWhatRegeditWrites", "host/machine_file/registry_export_writer.cpp",
     "last_column = 77", "last_column = 78"),
    ("Screen.MarksWhatIsNotStored", "host/screen/screen.cpp", "one.checked == other.checked && one.position == other.position",
     "one.checked == other.checked"),
    ("Scripts/ScriptsTest.MatchesItsTranscript/sort", "host/diagnosis/ports_table.cpp", '"DOS name",', '"name",'),
    ("SettingsLine.EveryFieldHasItsFallback", "src/uart_page/settings_line.cpp", "eonms", "eomns"),
    ("TextOperations.FormatGivesEveryConversionAndCutsAtTheCapacity", "src/reporting/text_operations.cpp",
     "0123456789ABCDEF", "0123456789abcdef"),
    ("Text.TakesTheColumnsOfItsScripts", "host/text.cpp", "int left = columns - 1;", "int left = columns;"),
    ("Trace.HasEveryLineButOne", "src/com_numbers/com_port_database.cpp", "Can't find any available", "Found no"),
    ("UartPage.ALineIsReadAndWrittenOnlyIfItDiffers", "src/uart_page/settings_storage.cpp",
     "!SamePortSettings(settings, params->Saved)", "true"),
    ("coverage/logic", "src/board_page/uart_modes.cpp",
     "return (capability & bits) == bits;", "return bits == 0x80000000 || (capability & bits) == bits;"),
    ("host/files", "host/whole_file.cpp", 'written += ".part";', ""),
    ("host/full_screen", "host/full_screen/terminal.cpp", "{KEY_HOME, {VK_HOME}}", "{KEY_HOME, {VK_END}}"),
    ("host/full_screen_picture", "docs/pictures/full_screen.svg", "COM3\u00A0(port1)", "COM4\u00A0(port1)"),
    ("host/hints", "host/full_screen/front_window.cpp", '"list", OfCode(VK_F4)', '"list", OfCode(VK_TAB)'),
    ("host/line_terminal", "host/line/console_libedit.cpp", "interrupted = 1;", "interrupted = 0;"),
    ("host/one_session", "host/session/mending_commands.cpp", '"undone: "', '"done: "'),
    ("host/report", "host/diagnosis/html_report.cpp", 'html += "&lt;";', 'html += "<";'),
    ("host/speed", "host/worlds/records.cpp", "if (number != 0) {",
     "if (number != 0 && std::ranges::count(numbers, \"\", [](const auto& each) { return ComName(each.first); }) == 0) {"),
    ("host/tells", "host/diagnosis/report.cpp", " things are wrong: ", " things may be wrong: "),
    ("host/terminals", "host/full_screen/terminal.cpp", "escape_wait = 20;", "escape_wait = 200;"),
    ("host/door", "kvr", "flock -n 9 && return", "return"),
    ("host/readme", "README.md", "COM10 and COM33 are marked", "COM10 are marked"),
    ("style/includes", "src/device_model/fifo_stages.cpp",
     '#include "device_model/fifo_stages.h"', '#include "board_page/channel_view.h"'),
    ("trace_docs", "docs/trace.md", "----> _OnInitDialog( )", "----> OnInitDialog( )"),
    ("trace_format", "src/reporting/trace.h", "if (last != '\\n') {", "if (last == 0) {"),
]


def run(*words):
    """Whether the command succeeds, and what it says."""
    done = subprocess.run(words, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    return done.returncode == 0, done.stdout


def built(build, *targets):
    """Builds the targets. Returns what the compiler says if that fails."""
    if not all(targets):
        return ""
    fine, said = run("cmake", "--build", build, "-j", str(os.cpu_count()), "--target", *targets)
    return "" if fine else said


def tested(build, tests):
    """The summary of the tests of these names."""
    names = "|".join(re.escape(test) for test in tests)
    return run("ctest", "--test-dir", build, "-R", f"^({names})( |$)")[1]


def target_of(test):
    """What has to be built for a test."""
    group, slash, _ = test.partition("/")
    return "kvr_tests" if "." in test else "kvr_counted" if group == "coverage" else "kvrhost" if slash else ""


def complaint(tree, build, test, file, text, fault):
    """What is wrong with a row of the table; empty if its test turns red."""
    right = (tree / file).read_text()
    if right.count(text) != 1:
        return f"{file} has {right.count(text)} times: {text}"
    (tree / file).write_text(right.replace(text, fault))
    said = built(build, target_of(test)) or tested(build, [test])
    (tree / file).write_text(right)
    return "" if "1 tests failed out of 1" in said else said


def main(wanted="."):
    faults = [row for row in FAULTS if re.search(wanted, row[0])]
    (ROOT / "build").mkdir(exist_ok=True)
    with tempfile.TemporaryDirectory(dir=ROOT / "build") as folder:
        tree = pathlib.Path(folder) / "tree"
        shutil.copytree(ROOT, tree, ignore=shutil.ignore_patterns("build", ".git"))
        build = tree / "build" / "debug"
        run("cmake", "-S", tree, "--preset", "debug")
        if said := built(build, "kvr_tests", "kvrhost", "kvr_counted"):
            return said
        said = tested(build, [row[0] for row in faults])
        if f" 0 tests failed out of {len(faults)}\n" not in said:
            return said
        green = 0
        for row in faults:
            said = complaint(tree, build, *row)
            print(f"{row[0]}: {said or 'turns red'}", flush=True)
            green += said != ""
        return green


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
