# The documents below docs, without ".md", that are for who changes the program and are not installed.
of_the_sources=(architecture building drawings help machinery reports traits)
