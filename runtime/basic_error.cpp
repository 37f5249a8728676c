#include "runtime/basic_error.h"

namespace runtime {
namespace {

struct ErrorRow {
  int number;
  const char* text;
};

constexpr ErrorRow kErrorTexts[] = {
    {3, "Return without GoSub"},
    {5, "Invalid procedure call or argument"},
    {6, "Overflow"},
    {7, "Out of memory"},
    {9, "Subscript out of range"},
    {10, "This array is fixed or temporarily locked"},
    {11, "Division by zero"},
    {13, "Type mismatch"},
    {14, "Out of string space"},
    {28, "Out of stack space"},
    {35, "Sub or Function not defined"},
    {48, "Error in loading DLL"},
    {51, "Internal error"},
    {52, "Bad file name or number"},
    {53, "File not found"},
    {54, "Bad file mode"},
    {55, "File already open"},
    {57, "Device I/O error"},
    {58, "File already exists"},
    {59, "Bad record length"},
    {61, "Disk full"},
    {62, "Input past end of file"},
    {63, "Bad record number"},
    {67, "Too many files"},
    {68, "Device unavailable"},
    {70, "Permission denied"},
    {71, "Disk not ready"},
    {74, "Can't rename with different drive"},
    {75, "Path/File access error"},
    {76, "Path not found"},
    {91, "Object variable or With block variable not set"},
    {92, "For loop not initialized"},
    {93, "Invalid pattern string"},
    {94, "Invalid use of Null"},
    {380, "Invalid property value"},
    {381, "Invalid property array index"},
    {340, "Control array element doesn't exist"},
    {383, "'Text' property is read-only"},
    {387, "Property can't be set on this control"},
    {423, "Property or method not found"},
    {438, "Object doesn't support this property or method"},
};

} // namespace

std::string errorText(int number) {
  for (const auto& row : kErrorTexts)
    if (row.number == number) return row.text;
  return "Application-defined or object-defined error";
}

RuntimeError::RuntimeError(int number) : number_(number), text_(errorText(number)) {}

void raiseError(int number) { throw RuntimeError(number); }

ErrObject& Err() {
  static ErrObject err;
  return err;
}

} // namespace runtime
