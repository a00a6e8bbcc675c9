# What Doxygen reads otherwise than the viewers of Markdown do.
# All pages, pictures and schemas end in one folder.
s,\]\((\.\./)*(images|schemas)/,](,g
# Sources are no pages; a class that is one is found by its name.
s,\[([^]]*)\]\(\.\./\.\./[^)]*\),\1,g
# In a table's code, the escaped bar.
s,`([^`|]*)\\\|\\\|([^`|]*)`,<kbd>\1\\|\\|\2</kbd>,g
# The dialogs' pages stand below that of their area.
s,^\| \[([A-Za-z]+)\]\(\1\.md\),| \\subpage md_docs_manual_\1 "\1",
