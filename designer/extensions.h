#pragma once

/// What the controls add to Designer besides themselves.

class QDesignerFormEditorInterface;

namespace zor::designer {

/// Registers the headings of the property editor and the "Device..." menu; once for an editor, however often it
/// is called.
void addExtensions(QDesignerFormEditorInterface& core);

} // namespace zor::designer
