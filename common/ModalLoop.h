#pragma once

class QDialog;

namespace tarn {

/// Runs @p dialog as QDialog::exec() does, with a loop that an exception may leave; for the
/// exec() of dialogs whose slots let an error of the kernel pass.
///
/// After an exception the dialog stands as the slot left it: open and modal. The host may read
/// it, run it again, hide it or destroy it. QDialog::exec() itself would keep a pointer to the
/// loop that is gone.
int RunModalLoop(QDialog& dialog);

} // namespace tarn
