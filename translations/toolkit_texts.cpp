// The toolkit's own texts in the windows of this module. They are listed for lupdate alone, and not
// compiled: with their translations in the module's own files, message boxes, file dialogs and
// context menus speak the user's language where no translation of the toolkit is installed.

#include <QtGlobal>

// clang-format off

// Buttons of message boxes and file dialogs
const char* const QPlatformTheme_texts[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save All"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Open"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Yes to &All"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "N&o to All"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Abort"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Retry"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Ignore"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Close"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Discard"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Help"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Apply"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Reset"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Restore Defaults"),
};
const char* const QDialogButtonBox_texts[] = {
    QT_TRANSLATE_NOOP("QDialogButtonBox", "OK"),
};
const char* const QMessageBox_texts[] = {
    QT_TRANSLATE_NOOP("QMessageBox", "OK"),
    QT_TRANSLATE_NOOP("QMessageBox", "Cancel"),
    QT_TRANSLATE_NOOP("QMessageBox", "Close"),
    QT_TRANSLATE_NOOP("QMessageBox", "Help"),
    QT_TRANSLATE_NOOP("QMessageBox", "Show Details..."),
    QT_TRANSLATE_NOOP("QMessageBox", "Hide Details..."),
};
const char* const QDialog_texts[] = {
    QT_TRANSLATE_NOOP("QDialog", "What's This?"),
};

// File dialogs
const char* const QFileDialog_texts[] = {
    QT_TRANSLATE_NOOP("QFileDialog", "Look in:"),
    QT_TRANSLATE_NOOP("QFileDialog", "Back"),
    QT_TRANSLATE_NOOP("QFileDialog", "Go back"),
    QT_TRANSLATE_NOOP("QFileDialog", "Alt+Left"),
    QT_TRANSLATE_NOOP("QFileDialog", "Alt+Right"),
    QT_TRANSLATE_NOOP("QFileDialog", "Alt+Up"),
    QT_TRANSLATE_NOOP("QFileDialog", "Forward"),
    QT_TRANSLATE_NOOP("QFileDialog", "Go forward"),
    QT_TRANSLATE_NOOP("QFileDialog", "Parent Directory"),
    QT_TRANSLATE_NOOP("QFileDialog", "Go to the parent directory"),
    QT_TRANSLATE_NOOP("QFileDialog", "Create New Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "Create a New Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "List View"),
    QT_TRANSLATE_NOOP("QFileDialog", "Change to list view mode"),
    QT_TRANSLATE_NOOP("QFileDialog", "Detail View"),
    QT_TRANSLATE_NOOP("QFileDialog", "Change to detail view mode"),
    QT_TRANSLATE_NOOP("QFileDialog", "Sidebar"),
    QT_TRANSLATE_NOOP("QFileDialog", "List of places and bookmarks"),
    QT_TRANSLATE_NOOP("QFileDialog", "Files"),
    QT_TRANSLATE_NOOP("QFileDialog", "Files of type:"),
    QT_TRANSLATE_NOOP("QFileDialog", "File &name:"),
    QT_TRANSLATE_NOOP("QFileDialog", "Directory:"),
    QT_TRANSLATE_NOOP("QFileDialog", "Directories"),
    QT_TRANSLATE_NOOP("QFileDialog", "All Files (*)"),
    QT_TRANSLATE_NOOP("QFileDialog", "All files (*)"),
    QT_TRANSLATE_NOOP("QFileDialog", "Find Directory"),
    QT_TRANSLATE_NOOP("QFileDialog", "Open"),
    QT_TRANSLATE_NOOP("QFileDialog", "Save As"),
    QT_TRANSLATE_NOOP("QFileDialog", "&Open"),
    QT_TRANSLATE_NOOP("QFileDialog", "&Choose"),
    QT_TRANSLATE_NOOP("QFileDialog", "&Save"),
    QT_TRANSLATE_NOOP("QFileDialog", "Show "),
    QT_TRANSLATE_NOOP("QFileDialog", "&Rename"),
    QT_TRANSLATE_NOOP("QFileDialog", "&Delete"),
    QT_TRANSLATE_NOOP("QFileDialog", "Delete"),
    QT_TRANSLATE_NOOP("QFileDialog", "Show &hidden files"),
    QT_TRANSLATE_NOOP("QFileDialog", "&New Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "New Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "Recent Places"),
    QT_TRANSLATE_NOOP("QFileDialog", "My Computer"),
    QT_TRANSLATE_NOOP("QFileDialog", "Remove"),
    QT_TRANSLATE_NOOP("QFileDialog", "%1\nDirectory not found.\nPlease verify the correct directory name was given."),
    QT_TRANSLATE_NOOP("QFileDialog", "%1\nFile not found.\nPlease verify the correct file name was given."),
    QT_TRANSLATE_NOOP("QFileDialog", "%1 already exists.\nDo you want to replace it?"),
    QT_TRANSLATE_NOOP("QFileDialog", "'%1' is write protected.\nDo you want to delete it anyway?"),
    QT_TRANSLATE_NOOP("QFileDialog", "Are you sure you want to delete '%1'?"),
    QT_TRANSLATE_NOOP("QFileDialog", "Could not delete directory."),
    QT_TRANSLATE_NOOP("QFileDialog", "Drive"),
    QT_TRANSLATE_NOOP("QFileDialog", "File"),
    QT_TRANSLATE_NOOP("QFileDialog", "%1 File"),
    QT_TRANSLATE_NOOP("QFileDialog", "File Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "Folder"),
    QT_TRANSLATE_NOOP("QFileDialog", "Alias"),
    QT_TRANSLATE_NOOP("QFileDialog", "Shortcut"),
    QT_TRANSLATE_NOOP("QFileDialog", "Unknown"),
};
const char* const QAbstractFileIconProvider_texts[] = {
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Drive"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "File"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "%1 File"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "File Folder"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Folder"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Alias"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Shortcut"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Unknown"),
};
const char* const QFileSystemModel_texts[] = {
    QT_TRANSLATE_NOOP("QFileSystemModel", "Name"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Size"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Type"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Kind"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Date Modified"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "My Computer"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Computer"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "Invalid filename"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer characters or no punctuation marks."),
    QT_TRANSLATE_NOOP("QFileSystemModel", "%1 TB"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "%1 GB"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "%1 MB"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "%1 KB"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "%1 bytes"),
    QT_TRANSLATE_NOOP("QFileSystemModel", "%1 byte(s)"),
};

// Context menus of fields, of the log and of scroll bars
const char* const QLineEdit_texts[] = {
    QT_TRANSLATE_NOOP("QLineEdit", "&Undo"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Redo"),
    QT_TRANSLATE_NOOP("QLineEdit", "Cu&t"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Copy"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Paste"),
    QT_TRANSLATE_NOOP("QLineEdit", "Delete"),
    QT_TRANSLATE_NOOP("QLineEdit", "Select All"),
};
const char* const QWidgetTextControl_texts[] = {
    QT_TRANSLATE_NOOP("QWidgetTextControl", "&Undo"),
    QT_TRANSLATE_NOOP("QWidgetTextControl", "&Redo"),
    QT_TRANSLATE_NOOP("QWidgetTextControl", "Cu&t"),
    QT_TRANSLATE_NOOP("QWidgetTextControl", "&Copy"),
    QT_TRANSLATE_NOOP("QWidgetTextControl", "Copy &Link Location"),
    QT_TRANSLATE_NOOP("QWidgetTextControl", "&Paste"),
    QT_TRANSLATE_NOOP("QWidgetTextControl", "Delete"),
    QT_TRANSLATE_NOOP("QWidgetTextControl", "Select All"),
};
const char* const QAbstractSpinBox_texts[] = {
    QT_TRANSLATE_NOOP("QAbstractSpinBox", "&Select All"),
    QT_TRANSLATE_NOOP("QAbstractSpinBox", "&Step up"),
    QT_TRANSLATE_NOOP("QAbstractSpinBox", "Step &down"),
};
const char* const QScrollBar_texts[] = {
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll here"),
    QT_TRANSLATE_NOOP("QScrollBar", "Left edge"),
    QT_TRANSLATE_NOOP("QScrollBar", "Top"),
    QT_TRANSLATE_NOOP("QScrollBar", "Right edge"),
    QT_TRANSLATE_NOOP("QScrollBar", "Bottom"),
    QT_TRANSLATE_NOOP("QScrollBar", "Page left"),
    QT_TRANSLATE_NOOP("QScrollBar", "Page up"),
    QT_TRANSLATE_NOOP("QScrollBar", "Page right"),
    QT_TRANSLATE_NOOP("QScrollBar", "Page down"),
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll left"),
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll up"),
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll right"),
    QT_TRANSLATE_NOOP("QScrollBar", "Scroll down"),
};
const char* const QTabBar_texts[] = {
    QT_TRANSLATE_NOOP("QTabBar", "Scroll Left"),
    QT_TRANSLATE_NOOP("QTabBar", "Scroll Right"),
};
const char* const QUnicodeControlCharacterMenu_texts[] = {
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "Insert Unicode control character"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "LRM Left-to-right mark"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "RLM Right-to-left mark"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "ZWJ Zero width joiner"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "ZWNJ Zero width non-joiner"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "ZWSP Zero width space"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "LRE Start of left-to-right embedding"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "RLE Start of right-to-left embedding"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "LRO Start of left-to-right override"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "RLO Start of right-to-left override"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "PDF Pop directional formatting"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "LRI Left-to-right isolate"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "RLI Right-to-left isolate"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "FSI First strong isolate"),
    QT_TRANSLATE_NOOP("QUnicodeControlCharacterMenu", "PDI Pop directional isolate"),
};

// Keys, as menus and tool tips name them
const char* const QShortcut_texts[] = {
    QT_TRANSLATE_NOOP("QShortcut", "+"),
    QT_TRANSLATE_NOOP("QShortcut", "Ctrl"),
    QT_TRANSLATE_NOOP("QShortcut", "Shift"),
    QT_TRANSLATE_NOOP("QShortcut", "Alt"),
    QT_TRANSLATE_NOOP("QShortcut", "Meta"),
    QT_TRANSLATE_NOOP("QShortcut", "Space"),
    QT_TRANSLATE_NOOP("QShortcut", "Esc"),
    QT_TRANSLATE_NOOP("QShortcut", "Tab"),
    QT_TRANSLATE_NOOP("QShortcut", "Backspace"),
    QT_TRANSLATE_NOOP("QShortcut", "Return"),
    QT_TRANSLATE_NOOP("QShortcut", "Enter"),
    QT_TRANSLATE_NOOP("QShortcut", "Ins"),
    QT_TRANSLATE_NOOP("QShortcut", "Del"),
    QT_TRANSLATE_NOOP("QShortcut", "Home"),
    QT_TRANSLATE_NOOP("QShortcut", "End"),
    QT_TRANSLATE_NOOP("QShortcut", "Left"),
    QT_TRANSLATE_NOOP("QShortcut", "Up"),
    QT_TRANSLATE_NOOP("QShortcut", "Right"),
    QT_TRANSLATE_NOOP("QShortcut", "Down"),
    QT_TRANSLATE_NOOP("QShortcut", "PgUp"),
    QT_TRANSLATE_NOOP("QShortcut", "PgDown"),
};

// What assistive technology is told that controls can do
const char* const QAccessibleActionInterface_texts[] = {
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Press"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Increase"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Decrease"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "ShowMenu"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "SetFocus"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Toggle"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Scroll Left"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Scroll Right"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Scroll Up"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Scroll Down"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Previous Page"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Next Page"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Triggers the action"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Increase the value"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Decrease the value"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Shows the menu"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Sets the focus"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Toggles the state"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Scrolls to the left"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Scrolls to the right"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Scrolls up"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Scrolls down"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Goes back a page"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Goes to the next page"),
};
const char* const QComboBox_texts[] = {
    QT_TRANSLATE_NOOP("QComboBox", "Open the combo box selection popup"),
    QT_TRANSLATE_NOOP("QComboBox", "False"),
    QT_TRANSLATE_NOOP("QComboBox", "True"),
};

