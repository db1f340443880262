#include "app/EnglishMessages.h"

#include <map>

#include "model/InputRules.h"

namespace tamsic {

namespace {

const std::map<int, std::string>& Table() {
  static const std::map<int, std::string> table = {
      {9101, "No note to print"},
      {9102, "Unable to save notes, no active project"},
      {9103, "Warning!"},
      {9104, "Unable to load notes, no active project"},
      {9105, "Please enter a function to be converted to polish notation."},
      {9106, "Invalid formula!"},
      {9107, "Please enter a project name"},
      {9108, "Please select the project path and file name"},
      {9109, "Error opening the web page:"},
      {9110, "Unable to run simulation"},
      {9111, "Error"},
      {9112, "The file '"},
      {9113, "' does not exist.  You probably have not run '"},
      {9114, "This will delete the selected graph.  Are you sure you want to proceed?"},
      {9115, "Confirmation"},
      {9116, "You must first fill in all values for this population in the density dependent reproduction table."},
      {9117, "You must first check the box for density dependent reproduction for this population."},
      {9118, "Would you like to save your project before quitting?"},
      {9119, "No names have been entered yet"},
      {9120, "This will overwrite the contents of the current report.  Continue?"},
      {9121, "This is not a recoverable action, are you sure you want to delete the current scenario?"},
      {9122, "Unable to load deterministic report, file not found"},
      {9123, "Unable to load output report, "},
      {9124, " not found. Scenario probably not yet run."},
      {9125, "Unable to load input report, file not found"},
      {9127, "Cannot find rtf file for loading into Project Report."},
      {9128, "There was a problem loading the project file"},
      {9129, "Unable to load data from "},
      {9130, " (scenario was probably not yet run)"},
      {9131, "Error loading files."},
      {9132, "Invalid input"},
      {9133, "The value must be numeric or a function, preceded by the "},
      {9134, " sign."},
      {9135, "The lower age for dispersal must be less than the upper age for dispersal"},
      {9136, "The project name does not match the file name.  Would you like to rename your project file to match the project name?"},
      {9137, "Would you like to also change the project name at this point to match the new file name?"},
      {9138, "The table has no user-modifiable properties"},
      {9139, "The project does not exist"},
      {9140, "Could not connect to server...  Check your internet connection or try again later."},
      {9141, "Error opening the following document:"},
      {9142, "Are you sure you want to quit?"},
      {9143, "There is a problem with the data"},
      {9144, "Have you modified the data file manually?"},
      {9145, "Unable to find section "},
      {9146, "Please enter a valid scenario name"},
      {9147, "Device Unavailable"},
      {9148, "Please select a folder:"},
      {9149, "Your note has not been saved. Do you want to save it now?"},
      {9150, "Yes"},
      {9151, "No"},
      {9161, "Value should be a percent (< 100), but appears to be entered as a proportion (< 1). Is this correct?"},
      {9162, "Age of reproduction must be a integer value!"},
      {9163, "Maximum age must be a integer value!"},
      {9164, "Maximum number of broods must be a integer value!"},
      {9165, "Maximum number of progeny must be a integer value!"},
      {9166, "Caution!"},
      {9167, "Stable age distribution may not be accurate because a function was used for a demographic rate."},
      {9168, "Tamsic may not be able to calculate how many pairs to breed, because a function is used for a "
             "demographic rate."},
      {9169, "Scenario names cannot contain characters ( \\ / * or ?) that are not valid within filenames."},
      {9170, "Each scenario must have a unique name!"},
      {9171, "Cannot delete an ST scenario. Go to ST form to edit ST structure."},
      {9172, "The rate matrix could not be written to "},
      {9173, "The rate matrix could not be read from "},
      {9174, "The rate matrix file has "},
      {9175, " lines, but the matrix has "},
      {9176, " populations: one line per source population is needed."},
      {9177, "Line "},
      {9178, " of the rate matrix file has "},
      {9179, " values, but the matrix has "},
      {9180, " populations."},
      {9181, "These "},
      {9182, " variables would make "},
      {9183, " Individual State variables; at most "},
      {9184, " are possible."},
      {9185, "Would you like to save your project before closing it?"},
      {9186, "These pasted values were refused and not stored:"},
      {9187, "These pasted values were stored; please check them:"},
      {9188, "Cells not listed here: "},
      {9189,
       "The report file is a Rich Text (RTF) document written by another program, which Tamsic cannot read."
       " The file stays as it is: the report opens empty, and saving it asks before replacing the file."},
      {9190, "Replace this Rich Text (RTF) document with the report? What it holds now will be lost."},
      {9191, "The report could not be saved; its file keeps what it held before."},
      {9192, "Save the changes to the project report before closing it?"},
      {9193, "The report file could not be read."},
      {9194, "Unable to print to "},
      {9195, "The help manual was not found. It is looked for in these folders:"},
      {9196, "The help manual could not be read:"},
      {9197, "The page could not be printed:"},
      {9198, "The graph needs whole numbers in From and To, To not below From, and an Increment above 0."},
      {9199, "Click the cell or box that should hold the function, then open the function editor."},
  };
  return table;
}

}  // namespace

std::string EnglishMessages::text(int number) const {
  const auto& table = Table();
  const auto it = table.find(number);
  return it == table.end() ? EnglishInputWords().text(number) : it->second;
}

}  // namespace tamsic
