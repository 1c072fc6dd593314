set print pretty on
print broken
