# What Doxygen reads otherwise than the viewers of Markdown do.
# All pages, pictures and schemas end in one folder.
s,\]\((\.\./)*(images|schemas)/,](,g
# Sources are no pages; a class that is one is found by its name.
s,\[([^]]*)\]\(\.\./\.\./[^)]*\),\1,g
# In a table's code, the escaped bar.
s,`([^`|]*)\\\|\\\|([^`|]*)`,<code>\1\&#124;\&#124;\2</code>,g
