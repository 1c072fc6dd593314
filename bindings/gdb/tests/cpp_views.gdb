set print pretty on
print *owner
print view
print list
print absent
print editor
print texts
print bytes
set print elements 1
print list
