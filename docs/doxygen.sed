# Adapts Markdown that Doxygen treats differently from other viewers.
# All pages, pictures and schemas end up in one folder.
s,\]\((\.\./)*(images|schemas)/,](,g
# Sources are not pages; Doxygen links a class by its name.
s,\[([^]]*)\]\(\.\./\.\./[^)]*\),\1,g
# Escaped bars in code within tables.
s,`([^`|]*)\\\|\\\|([^`|]*)`,<kbd>\1\\|\\|\2</kbd>,g
# The page of a dialog is a subpage of its area.
s,^\| \[([A-Za-z]+)\]\(\1\.md\),| \\subpage md_docs_manual_\1 "\1",
