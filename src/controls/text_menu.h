#pragma once

class QLineEdit;
class QPlainTextEdit;

namespace qinghe {

/// A right click in the box, or the menu key, offers 撤销, 剪切, 复制, 粘贴, 全选; what cannot be done at the moment is
/// grey. Nothing of it is a key press.
void offerTextMenu(QLineEdit& box);
void offerTextMenu(QPlainTextEdit& box);

} // namespace qinghe
